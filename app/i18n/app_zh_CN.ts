<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>Open configuration...</source>
        <translation>打开配置文件...</translation>
    </message>
    <message>
        <source>Save configuration...</source>
        <translation>保存配置文件...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>工具(&amp;T)</translation>
    </message>
    <message>
        <source>No tools available</source>
        <translation>暂无可用工具</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
    <message>
        <source>Feature names</source>
        <translation>属性名称</translation>
    </message>
    <message>
        <source>Original names</source>
        <translation>原始名称</translation>
    </message>
    <message>
        <source>Translated names</source>
        <translation>翻译名称</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Mouse and keyboard...</source>
        <translation>鼠标与键盘操作...</translation>
    </message>
    <message>
        <source>About Lumidor...</source>
        <translation>关于 Lumidor...</translation>
    </message>
    <message>
        <source>Closing cameras...</source>
        <translation>正在关闭相机...</translation>
    </message>
    <message>
        <source>Searching for cameras...</source>
        <translation>正在搜索相机...</translation>
    </message>
    <message>
        <source>Cameras found: %1</source>
        <translation>已发现相机：%1</translation>
    </message>
    <message>
        <source>Closing cameras, please wait...</source>
        <translation>正在关闭相机，请稍候...</translation>
    </message>
    <message>
        <source>Add remote device failed.</source>
        <translation>添加远程设备失败。</translation>
    </message>
    <message>
        <source>Open configuration</source>
        <translation>打开配置文件</translation>
    </message>
    <message>
        <source>Save configuration</source>
        <translation>保存配置文件</translation>
    </message>
    <message>
        <source>Configuration files (*.tavcfg);;All files (*)</source>
        <translation>配置文件 (*.tavcfg);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Load configuration failed: %1</source>
        <translation>加载配置文件失败：%1</translation>
    </message>
    <message>
        <source>Save configuration failed: %1</source>
        <translation>保存配置文件失败：%1</translation>
    </message>
</context>
<context>
    <name>CCollapsiblePanel</name>
    <message>
        <source>Show panel</source>
        <translation>显示面板</translation>
    </message>
    <message>
        <source>Hide panel</source>
        <translation>隐藏面板</translation>
    </message>
</context>
<context>
    <name>CAboutDlg</name>
    <message>
        <source>About Lumidor</source>
        <translation>关于 Lumidor</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Viewer for GigE Vision and USB3 Vision cameras.</source>
        <translation>GigE Vision 与 USB3 Vision 相机客户端。</translation>
    </message>
    <message>
        <source>Camera layer version: %1</source>
        <translation>相机接口库版本：%1</translation>
    </message>
</context>
<context>
    <name>CHelpDlg</name>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Video views</source>
        <translation>视频窗口</translation>
    </message>
    <message>
        <source>Device list</source>
        <translation>设备列表</translation>
    </message>
    <message>
        <source>Feature panel</source>
        <translation>属性面板</translation>
    </message>
    <message>
        <source>Mouse or key</source>
        <translation>鼠标或按键</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>作用</translation>
    </message>
    <message>
        <source>Mouse wheel</source>
        <translation>鼠标滚轮</translation>
    </message>
    <message>
        <source>Zoom in or out around the mouse pointer</source>
        <translation>以鼠标位置为中心放大或缩小</translation>
    </message>
    <message>
        <source>Left button drag</source>
        <translation>按住左键拖动</translation>
    </message>
    <message>
        <source>Move the zoomed image</source>
        <translation>移动放大后的图像</translation>
    </message>
    <message>
        <source>Double click</source>
        <translation>双击</translation>
    </message>
    <message>
        <source>Enlarge the view to the whole video area, or back</source>
        <translation>将窗口放大到整个视频区域，或还原</translation>
    </message>
    <message>
        <source>Right click</source>
        <translation>右键单击</translation>
    </message>
    <message>
        <source>Menu of the view: zoom, flip, crosshair, save and record</source>
        <translation>窗口菜单：缩放、翻转、十字线、保存图像与录像</translation>
    </message>
    <message>
        <source>Click a view</source>
        <translation>单击窗口</translation>
    </message>
    <message>
        <source>Select its camera in the device list and the feature panel</source>
        <translation>在设备列表和属性面板中选中该相机</translation>
    </message>
    <message>
        <source>Layout buttons</source>
        <translation>布局按钮</translation>
    </message>
    <message>
        <source>Show 1, 2, 4, 9 or 16 views</source>
        <translation>显示 1、2、4、9 或 16 个窗口</translation>
    </message>
    <message>
        <source>Double click a camera</source>
        <translation>双击相机</translation>
    </message>
    <message>
        <source>Connect to the camera</source>
        <translation>连接该相机</translation>
    </message>
    <message>
        <source>Right click a camera</source>
        <translation>右键单击相机</translation>
    </message>
    <message>
        <source>Menu: connect, disconnect, Force IP, user ID</source>
        <translation>菜单：连接、断开、强制 IP、用户 ID</translation>
    </message>
    <message>
        <source>Right click the GigE Vision entry</source>
        <translation>右键单击 GigE Vision 项</translation>
    </message>
    <message>
        <source>Add a remote camera by its address</source>
        <translation>按地址添加远程相机</translation>
    </message>
    <message>
        <source>Refresh button</source>
        <translation>刷新按钮</translation>
    </message>
    <message>
        <source>Search for cameras again</source>
        <translation>重新搜索相机</translation>
    </message>
    <message>
        <source>Buttons beside a camera</source>
        <translation>相机旁的按钮</translation>
    </message>
    <message>
        <source>Connect, disconnect or change its IP address</source>
        <translation>连接、断开或修改其 IP 地址</translation>
    </message>
    <message>
        <source>Click a value</source>
        <translation>单击数值</translation>
    </message>
    <message>
        <source>Edit the feature</source>
        <translation>编辑该属性</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>回车键</translation>
    </message>
    <message>
        <source>Write the typed value to the camera</source>
        <translation>将输入的值写入相机</translation>
    </message>
    <message>
        <source>Escape</source>
        <translation>Esc 键</translation>
    </message>
    <message>
        <source>Abandon the edit and keep the camera's value</source>
        <translation>放弃编辑，保留相机当前值</translation>
    </message>
    <message>
        <source>Mouse wheel on an editor</source>
        <translation>在编辑框上滚动滚轮</translation>
    </message>
    <message>
        <source>Change the value, only while the editor has the focus</source>
        <translation>仅当编辑框获得焦点时改变数值</translation>
    </message>
    <message>
        <source>Search field</source>
        <translation>搜索框</translation>
    </message>
    <message>
        <source>Show only the features whose name contains the text</source>
        <translation>只显示名称包含该文字的属性</translation>
    </message>
    <message>
        <source>Hover a feature</source>
        <translation>鼠标悬停在属性上</translation>
    </message>
    <message>
        <source>Show its description, range and access</source>
        <translation>显示其说明、范围和访问权限</translation>
    </message>
</context>
</TS>
