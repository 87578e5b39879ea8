<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>CPropertyForm</name>
    <message>
        <source>Features</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>快速设置</translation>
    </message>
    <message>
        <source>Image Format</source>
        <translation>图像格式</translation>
    </message>
    <message>
        <source>GPIO</source>
        <translation>GPIO</translation>
    </message>
    <message>
        <source>Expand all</source>
        <translation>全部展开</translation>
    </message>
    <message>
        <source>Collapse all</source>
        <translation>全部折叠</translation>
    </message>
    <message>
        <source>Connect a camera to see its features.</source>
        <translation>连接相机后可查看其属性。</translation>
    </message>
</context>
<context>
    <name>CPropertySettingsForm</name>
    <message>
        <source>Exposure</source>
        <translation>曝光</translation>
    </message>
    <message>
        <source>Exposure Auto</source>
        <translation>自动曝光</translation>
    </message>
    <message>
        <source>Exposure Time</source>
        <translation>曝光时间</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>增益</translation>
    </message>
    <message>
        <source>Gain Auto</source>
        <translation>自动增益</translation>
    </message>
    <message>
        <source>Acquisition</source>
        <translation>采集</translation>
    </message>
    <message>
        <source>Frame Rate Enable</source>
        <translation>帧率控制使能</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>帧率</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>触发</translation>
    </message>
    <message>
        <source>Trigger Mode</source>
        <translation>触发模式</translation>
    </message>
    <message>
        <source>Trigger Source</source>
        <translation>触发源</translation>
    </message>
    <message>
        <source>Software Trigger</source>
        <translation>软触发</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>Pixel Format</source>
        <translation>像素格式</translation>
    </message>
    <message>
        <source>White Balance Auto</source>
        <translation>自动白平衡</translation>
    </message>
    <message>
        <source>Reverse X</source>
        <translation>水平翻转</translation>
    </message>
    <message>
        <source>Reverse Y</source>
        <translation>垂直翻转</translation>
    </message>
</context>
<context>
    <name>CPropertyImageFormatForm</name>
    <message>
        <source>Region of Interest</source>
        <translation>感兴趣区域</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>宽度</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>Offset X</source>
        <translation>水平偏移</translation>
    </message>
    <message>
        <source>Offset Y</source>
        <translation>垂直偏移</translation>
    </message>
    <message>
        <source>Binning and Format</source>
        <translation>合并与格式</translation>
    </message>
    <message>
        <source>Binning Horizontal</source>
        <translation>水平合并</translation>
    </message>
    <message>
        <source>Binning Vertical</source>
        <translation>垂直合并</translation>
    </message>
    <message>
        <source>Pixel Format</source>
        <translation>像素格式</translation>
    </message>
    <message>
        <source>Draw ROI</source>
        <translation>绘制ROI</translation>
    </message>
    <message>
        <source>Draw the region of interest on the video with the mouse</source>
        <translation>用鼠标在视频上绘制感兴趣区域</translation>
    </message>
    <message>
        <source>Full Frame</source>
        <translation>全幅</translation>
    </message>
    <message>
        <source>Use the whole sensor</source>
        <translation>使用整个传感器</translation>
    </message>
    <message>
        <source>Stop acquisition before changing the image format.</source>
        <translation>请先停止采集再修改图像格式。</translation>
    </message>
    <message>
        <source>The camera does not let the image size change now.</source>
        <translation>相机当前不允许修改图像尺寸。</translation>
    </message>
</context>
<context>
    <name>CFeatureControlPage</name>
    <message>
        <source>Execute</source>
        <translation>执行</translation>
    </message>
    <message>
        <source>Not available now</source>
        <translation>当前不可用</translation>
    </message>
    <message>
        <source>Setting %1 failed.</source>
        <translation>设置 %1 失败。</translation>
    </message>
    <message>
        <source>Executing %1 failed.</source>
        <translation>执行 %1 失败。</translation>
    </message>
</context>
<context>
    <name>CSaveFeaturesDlg</name>
    <message>
        <source>Save Features</source>
        <translation>保存属性</translation>
    </message>
    <message>
        <source>User Set Selector</source>
        <translation>用户集选择</translation>
    </message>
    <message>
        <source>User Set Load</source>
        <translation>加载用户集</translation>
    </message>
    <message>
        <source>User Set Save</source>
        <translation>保存用户集</translation>
    </message>
    <message>
        <source>User Set Default</source>
        <translation>默认用户集</translation>
    </message>
    <message>
        <source>Execute</source>
        <translation>执行</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>默认</translation>
    </message>
    <message>
        <source>UserSet1</source>
        <translation>用户集1</translation>
    </message>
    <message>
        <source>UserSet2</source>
        <translation>用户集2</translation>
    </message>
    <message>
        <source>set UserSetSelector property value %1 fail, please check value.</source>
        <translation>设置 UserSetSelector 属性值 %1 失败，请检查该值。</translation>
    </message>
    <message>
        <source>set UserSetDefault property value %1 fail, please check value.</source>
        <translation>设置 UserSetDefault 属性值 %1 失败，请检查该值。</translation>
    </message>
    <message>
        <source>execute UserSetLoad fail.</source>
        <translation>执行 UserSetLoad 失败。</translation>
    </message>
    <message>
        <source>execute UserSetSave fail.</source>
        <translation>执行 UserSetSave 失败。</translation>
    </message>
</context>
<context>
    <name>CRegularFile</name>
    <message>
        <source>a FIFO (named pipe)</source>
        <translation>FIFO（命名管道）</translation>
    </message>
    <message>
        <source>a directory</source>
        <translation>目录</translation>
    </message>
    <message>
        <source>a device</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>a socket</source>
        <translation>套接字</translation>
    </message>
    <message>
        <source>a special file</source>
        <translation>特殊文件</translation>
    </message>
    <message>
        <source>%1 is a link to %2, not to a regular file.</source>
        <translation>%1 是指向%2的链接，而不是指向普通文件。</translation>
    </message>
    <message>
        <source>%1 is %2, not a regular file.</source>
        <translation>%1 是%2，不是普通文件。</translation>
    </message>
    <message>
        <source>%1 is too large (%2 bytes); files over %3 MB are refused.</source>
        <translation>%1 过大（%2 字节）；超过 %3 MB 的文件不予读取。</translation>
    </message>
    <message>
        <source>%1 cannot be used: %2</source>
        <translation>无法使用 %1：%2</translation>
    </message>
    <message>
        <source>%1 could not be opened: %2</source>
        <translation>无法打开 %1：%2</translation>
    </message>
    <message>
        <source>%1 could not be read: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
</context>
<context>
    <name>CDeviceParamFile</name>
    <message>
        <source>line %1: no &quot;name=value&quot; pair</source>
        <translation>第 %1 行：没有“名称=值”</translation>
    </message>
    <message>
        <source>line %1: &quot;%2&quot; is not a feature name</source>
        <translation>第 %1 行：“%2”不是属性名</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>文件为空</translation>
    </message>
    <message>
        <source>it goes on after its end marker (line %1)</source>
        <translation>结束标记之后还有内容（第 %1 行）</translation>
    </message>
    <message>
        <source>it ends inside its first line</source>
        <translation>文件在第一行中间就结束了</translation>
    </message>
    <message>
        <source>its end marker counts %1 lines, but %2 come before it</source>
        <translation>结束标记记录了 %1 行，但其前面有 %2 行</translation>
    </message>
    <message>
        <source>it ends before its end marker, so it was cut short</source>
        <translation>文件在结束标记之前就结束了，已被截断</translation>
    </message>
    <message>
        <source>line %1: cut short, not loaded</source>
        <translation>第 %1 行：已被截断，未加载</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
</context>
<context>
    <name>CParamFileNodeMap</name>
    <message>
        <source>no such feature</source>
        <translation>没有该属性</translation>
    </message>
    <message>
        <source>not writeable now</source>
        <translation>当前不可写</translation>
    </message>
    <message>
        <source>not a value feature</source>
        <translation>不是数值类属性</translation>
    </message>
    <message>
        <source>refused by the camera</source>
        <translation>相机拒绝了该值</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a value of this feature's type</source>
        <translation>“%1”不是该属性类型的值</translation>
    </message>
</context>
<context>
    <name>CParamFileSaveThread</name>
    <message>
        <source>The camera is not connected.</source>
        <translation>相机未连接。</translation>
    </message>
    <message>
        <source>The camera's features could not be read.</source>
        <translation>无法读取相机的属性。</translation>
    </message>
    <message>
        <source>The camera was disconnected.</source>
        <translation>相机已断开。</translation>
    </message>
    <message>
        <source>Saving was stopped.</source>
        <translation>保存已停止。</translation>
    </message>
</context>
<context>
    <name>CParamFileLoadThread</name>
    <message>
        <source>Loading was stopped.</source>
        <translation>加载已停止。</translation>
    </message>
    <message>
        <source>The file could not be read: %1</source>
        <translation>无法读取文件：%1</translation>
    </message>
    <message>
        <source>The file does not start with the header of a Lumidor device parameter file; only lines naming features of this camera are loaded.</source>
        <translation>文件开头不是 Lumidor 设备参数文件的文件头；只加载命名了本相机属性的行。</translation>
    </message>
    <message>
        <source>The camera %1 was not found.</source>
        <translation>未找到相机 %1。</translation>
    </message>
    <message>
        <source>The camera %1 could not be connected.</source>
        <translation>无法连接相机 %1。</translation>
    </message>
    <message>
        <source>The camera's features could not be read.</source>
        <translation>无法读取相机的属性。</translation>
    </message>
    <message>
        <source>The file was saved from a %1 %2; this camera is a %3. Features that match are loaded.</source>
        <translation>该文件保存自 %1 %2；本相机为 %3。只加载相匹配的属性。</translation>
    </message>
    <message>
        <source>this camera has no such feature</source>
        <translation>本相机没有该属性</translation>
    </message>
    <message>
        <source>not a feature that holds a value</source>
        <translation>不是保存数值的属性</translation>
    </message>
    <message>
        <source>%1 does not select this feature on this camera</source>
        <translation>在本相机上 %1 不选择该属性</translation>
    </message>
    <message>
        <source>selector %1 could not be set to %2: %3</source>
        <translation>选择器 %1 无法设为 %2：%3</translation>
    </message>
    <message>
        <source>not written: loading stopped</source>
        <translation>未写入：加载已停止</translation>
    </message>
    <message>
        <source>The camera was disconnected while loading.</source>
        <translation>加载过程中相机已断开。</translation>
    </message>
    <message>
        <source>Parameter file load report</source>
        <translation>参数文件加载报告</translation>
    </message>
    <message>
        <source>Time: %1</source>
        <translation>时间：%1</translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation>文件：%1</translation>
    </message>
    <message>
        <source>Camera: %1</source>
        <translation>相机：%1</translation>
    </message>
    <message>
        <source>Loaded %1 of %2 features.</source>
        <translation>已加载 %1 / %2 个属性。</translation>
    </message>
    <message>
        <source>Loading did not complete.</source>
        <translation>加载未完成。</translation>
    </message>
    <message>
        <source>Features not loaded (%1):</source>
        <translation>未加载的属性（%1）：</translation>
    </message>
    <message>
        <source>Features skipped because they identify the camera or its link (%1):</source>
        <translation>因标识相机或其链路而跳过的属性（%1）：</translation>
    </message>
    <message>
        <source>Lines not understood (%1):</source>
        <translation>无法识别的行（%1）：</translation>
    </message>
    <message>
        <source>The file %1 is damaged: %2.</source>
        <translation>文件 %1 已损坏：%2。</translation>
    </message>
    <message>
        <source>Nothing in it can be loaded.</source>
        <translation>其中没有可加载的内容。</translation>
    </message>
    <message>
        <source>The file is damaged: %1. Only the complete lines it holds were loaded, as chosen when asked.</source>
        <translation>文件已损坏：%1。按询问时的选择，只加载了其中完整的行。</translation>
    </message>
    <message>
        <source>The file carries no end marker (it was written before files had one), so a file cut short cannot be told from a whole one.</source>
        <translation>文件没有结束标记（写入时文件还没有结束标记），因此无法区分被截断的文件与完整的文件。</translation>
    </message>
    <message>
        <source>The file was damaged; only its complete lines were loaded.</source>
        <translation>文件已损坏；只加载了其中完整的行。</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
</context>
<context>
    <name>CParamFileController</name>
    <message>
        <source>Another parameter file is being processed. Please wait until it is done.</source>
        <translation>正在处理另一个参数文件，请等待其完成。</translation>
    </message>
    <message>
        <source>Parameter files (*.txt);;All files (*)</source>
        <translation>参数文件 (*.txt);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Save Config</source>
        <translation>保存配置</translation>
    </message>
    <message>
        <source>Open Config</source>
        <translation>打开配置</translation>
    </message>
    <message>
        <source>Loading parameters...</source>
        <translation>正在加载参数...</translation>
    </message>
    <message>
        <source>Connect the camera before saving its parameters.</source>
        <translation>请先连接相机再保存其参数。</translation>
    </message>
    <message>
        <source>Saving parameters...</source>
        <translation>正在保存参数...</translation>
    </message>
    <message>
        <source>%1
%2 of %3 features</source>
        <translation>%1
%2 / %3 个属性</translation>
    </message>
    <message>
        <source>Load Config success! %1 features loaded.</source>
        <translation>加载配置成功！已加载 %1 个属性。</translation>
    </message>
    <message>
        <source>%1 of %2 features were loaded. The report lists the others and why.</source>
        <translation>已加载 %1 / %2 个属性。报告列出了其余属性及原因。</translation>
    </message>
    <message>
        <source>Load Config failed. %1</source>
        <translation>加载配置失败。%1</translation>
    </message>
    <message>
        <source>Save Config success! %1 values written to %2.</source>
        <translation>保存配置成功！已将 %1 个值写入 %2。</translation>
    </message>
    <message>
        <source>Save Config failed. %1</source>
        <translation>保存配置失败。%1</translation>
    </message>
    <message>
        <source>Load Config cancelled.</source>
        <translation>加载配置已取消。</translation>
    </message>
    <message>
        <source>Save Config cancelled; nothing was written to %1.</source>
        <translation>保存配置已取消；未向 %1 写入任何内容。</translation>
    </message>
    <message>
        <source>%1
Load the %2 complete values it still holds anyway?</source>
        <translation>%1
仍然加载其中完整的 %2 个值吗？</translation>
    </message>
    <message>
        <source>The load report was not written: %1</source>
        <translation>加载报告未写入：%1</translation>
    </message>
</context>
</TS>
