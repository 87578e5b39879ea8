<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>CPropertyFeaturesForm</name>
    <message>
        <source>Beginner</source>
        <translation>初级</translation>
    </message>
    <message>
        <source>Expert</source>
        <translation>专家</translation>
    </message>
    <message>
        <source>Guru</source>
        <translation>大师</translation>
    </message>
    <message>
        <source>Search features</source>
        <translation>搜索属性</translation>
    </message>
    <message>
        <source>Expand All</source>
        <translation>全部展开</translation>
    </message>
    <message>
        <source>Collapse All</source>
        <translation>全部折叠</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>复位</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Translate</source>
        <translation>翻译</translation>
    </message>
    <message>
        <source>Switch between translated and raw feature names</source>
        <translation>在翻译名称与原始属性名称之间切换</translation>
    </message>
    <message>
        <source>Select a feature to see its description.</source>
        <translation>选择一个属性以查看其说明。</translation>
    </message>
    <message>
        <source>set value failed, please check increment value</source>
        <translation>设置失败，请检查步长值</translation>
    </message>
    <message>
        <source>please enter invalid IP Address</source>
        <translation>请输入有效的IP地址</translation>
    </message>
    <message>
        <source>Are you sure to reset?</source>
        <translation>确定要复位吗？</translation>
    </message>
    <message>
        <source>Reseting...</source>
        <translation>正在复位...</translation>
    </message>
    <message>
        <source>Reset success!</source>
        <translation>复位成功！</translation>
    </message>
    <message>
        <source>Reset failed!</source>
        <translation>复位失败！</translation>
    </message>
    <message>
        <source>Save Config failed.</source>
        <translation>保存配置失败。</translation>
    </message>
</context>
<context>
    <name>CFeatureTreeBuilder</name>
    <message>
        <source>Integer</source>
        <translation>整型</translation>
    </message>
    <message>
        <source>Float</source>
        <translation>浮点型</translation>
    </message>
    <message>
        <source>Enumeration</source>
        <translation>枚举</translation>
    </message>
    <message>
        <source>Bool</source>
        <translation>布尔</translation>
    </message>
    <message>
        <source>String</source>
        <translation>字符串</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>标准</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>自定义</translation>
    </message>
    <message>
        <source>Beginner</source>
        <translation>初级</translation>
    </message>
    <message>
        <source>Expert</source>
        <translation>专家</translation>
    </message>
    <message>
        <source>Guru</source>
        <translation>大师</translation>
    </message>
    <message>
        <source>True</source>
        <translation>是</translation>
    </message>
    <message>
        <source>False</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Selector: </source>
        <translation>选择器：</translation>
    </message>
    <message>
        <source>Feature Name: </source>
        <translation>属性名称：</translation>
    </message>
    <message>
        <source>Type: </source>
        <translation>类型：</translation>
    </message>
    <message>
        <source>Min: </source>
        <translation>最小值：</translation>
    </message>
    <message>
        <source>Max: </source>
        <translation>最大值：</translation>
    </message>
    <message>
        <source>Increment: </source>
        <translation>步长：</translation>
    </message>
    <message>
        <source>Max Length: </source>
        <translation>最大长度：</translation>
    </message>
    <message>
        <source> bytes</source>
        <translation> 字节</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>长度：</translation>
    </message>
    <message>
        <source> Bytes</source>
        <translation> 字节</translation>
    </message>
    <message>
        <source>Name Space: </source>
        <translation>命名空间：</translation>
    </message>
    <message>
        <source>Visibility: </source>
        <translation>可见性：</translation>
    </message>
    <message>
        <source>Streamable: </source>
        <translation>可流式传输：</translation>
    </message>
    <message>
        <source>Category Name: </source>
        <translation>类别名称：</translation>
    </message>
    <message>
        <source>Enum Entry Name: </source>
        <translation>枚举项名称：</translation>
    </message>
    <message>
        <source>Enum Entry Value: </source>
        <translation>枚举项值：</translation>
    </message>
    <message>
        <source>Parameter out of range</source>
        <translation>参数超出范围</translation>
    </message>
    <message>
        <source>{Not Available}</source>
        <translation>{不可用}</translation>
    </message>
    <message>
        <source>{Command}</source>
        <translation>{命令}</translation>
    </message>
    <message>
        <source>{Executing}</source>
        <translation>{执行中}</translation>
    </message>
    <message>
        <source>{Register}</source>
        <translation>{寄存器}</translation>
    </message>
</context>
<context>
    <name>QtTreePropertyBrowser</name>
    <message>
        <source>Property</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
</context>
<context>
    <name>QtPushButtonFactory</name>
    <message>
        <source>{Executing}</source>
        <translation>{执行中}</translation>
    </message>
</context>
<context>
    <name>CPropertyGPIOForm</name>
    <message>
        <source>Common Attributes</source>
        <translation>通用属性</translation>
    </message>
</context>
</TS>
