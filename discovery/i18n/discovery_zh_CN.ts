<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>CDeviceInfoRows</name>
    <message>
        <source>Open</source>
        <translation>开放</translation>
    </message>
    <message>
        <source>Exclusive</source>
        <translation>独占</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>控制</translation>
    </message>
    <message>
        <source>ControlWithSwitchover</source>
        <translation>可切换控制</translation>
    </message>
    <message>
        <source>Undefined</source>
        <translation>未定义</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>OpenReadWrite</source>
        <translation>打开读写</translation>
    </message>
    <message>
        <source>OpenReadOnly</source>
        <translation>打开只读</translation>
    </message>
    <message>
        <source>ReadWrite</source>
        <translation>读写</translation>
    </message>
    <message>
        <source>ReadOnly</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>NoAccess</source>
        <translation>无权限</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>忙碌</translation>
    </message>
    <message>
        <source>Access Status</source>
        <translation>访问状态</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>描述</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>IP地址</translation>
    </message>
    <message>
        <source>Subnet Mask</source>
        <translation>子网掩码</translation>
    </message>
    <message>
        <source>Gateway</source>
        <translation>网关</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>厂商</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>型号</translation>
    </message>
    <message>
        <source>Manufacture</source>
        <translation>制造信息</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation>序列号</translation>
    </message>
    <message>
        <source>Protocol Version</source>
        <translation>协议版本</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>有效</translation>
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
        <source>IP Configuration</source>
        <translation>IP配置</translation>
    </message>
    <message>
        <source>Vendor ID</source>
        <translation>厂商ID</translation>
    </message>
    <message>
        <source>Device ID</source>
        <translation>设备ID</translation>
    </message>
    <message>
        <source>Subsystem ID</source>
        <translation>子系统ID</translation>
    </message>
    <message>
        <source>Revision</source>
        <translation>修订版本</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Device GUID</source>
        <translation>设备GUID</translation>
    </message>
    <message>
        <source>Max Power</source>
        <translation>最大功率</translation>
    </message>
    <message>
        <source>Driver Installed</source>
        <translation>驱动已安装</translation>
    </message>
    <message>
        <source>Vendor Name</source>
        <translation>厂商名称</translation>
    </message>
    <message>
        <source>Port ID</source>
        <translation>端口ID</translation>
    </message>
    <message>
        <source>Interface ID</source>
        <translation>接口ID</translation>
    </message>
    <message>
        <source>Devide ID</source>
        <translation>设备ID</translation>
    </message>
    <message>
        <source>TL Type</source>
        <translation>传输层类型</translation>
    </message>
    <message>
        <source>Interface Info</source>
        <translation>接口信息</translation>
    </message>
    <message>
        <source>Device Info</source>
        <translation>设备信息</translation>
    </message>
</context>
<context>
    <name>CDeviceListController</name>
    <message>
        <source>Save GenICam XML</source>
        <translation>保存GenICam XML</translation>
    </message>
    <message>
        <source>XML (*.xml *.zip)</source>
        <translation>XML (*.xml *.zip)</translation>
    </message>
    <message>
        <source> IP address is invalid!</source>
        <translation> IP地址无效！</translation>
    </message>
    <message>
        <source>Connection failed. Device is incompatible with the current USB port!
Please plug in the device into suitable PC USB port!
</source>
        <translation>连接失败。设备与当前USB端口不兼容！
请将设备插入合适的电脑USB端口！
</translation>
    </message>
    <message>
        <source>Current physical link is not USB3.0. Connection maybe fail!
Are you sure you want to continue?</source>
        <translation>当前物理链路不是USB3.0，连接可能失败！
确定要继续吗？</translation>
    </message>
    <message>
        <source>Connection failed. Device does not exist!
</source>
        <translation>连接失败。设备不存在！
</translation>
    </message>
    <message>
        <source>The maximum number of connections has been reached.</source>
        <translation>已达到最大连接数。</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Connecting, please wait...</source>
        <translation>正在连接，请稍候...</translation>
    </message>
    <message>
        <source>Device not found.</source>
        <translation>未找到设备。</translation>
    </message>
    <message>
        <source>network card has modified!</source>
        <translation>网卡已被修改！</translation>
    </message>
    <message>
        <source>Download xml file failed.</source>
        <translation>下载XML文件失败。</translation>
    </message>
</context>
<context>
    <name>CDeviceListMenus</name>
    <message>
        <source>Disconnect</source>
        <translation>断开连接</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Open Config</source>
        <translation>打开配置</translation>
    </message>
    <message>
        <source>Save Config</source>
        <translation>保存配置</translation>
    </message>
    <message>
        <source>Stop Acquisition</source>
        <translation>停止采集</translation>
    </message>
    <message>
        <source>Start Acquisition</source>
        <translation>开始采集</translation>
    </message>
    <message>
        <source>Force IP</source>
        <translation>修改IP</translation>
    </message>
    <message>
        <source>Set DeviceUserID</source>
        <translation>设置设备用户ID</translation>
    </message>
    <message>
        <source>Save GenICam XML</source>
        <translation>保存GenICam XML</translation>
    </message>
    <message>
        <source>Copy Device Info</source>
        <translation>复制设备信息</translation>
    </message>
    <message>
        <source>Add Remote Camera</source>
        <translation>添加远程相机</translation>
    </message>
</context>
<context>
    <name>CDiscoveryButtonsForm</name>
    <message>
        <source>Connect</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>断开连接</translation>
    </message>
    <message>
        <source>Force IP</source>
        <translation>修改IP</translation>
    </message>
</context>
<context>
    <name>CDiscoveryDevicesForm</name>
    <message>
        <source>GigE</source>
        <translation>GigE</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Interface Info</source>
        <translation>接口信息</translation>
    </message>
    <message>
        <source>Device Info</source>
        <translation>设备信息</translation>
    </message>
    <message>
        <source> Connection failed!</source>
        <translation> 连接失败！</translation>
    </message>
</context>
<context>
    <name>CDiscoveryDevicesFormUi</name>
    <message>
        <source>Device List</source>
        <translation>设备列表</translation>
    </message>
    <message>
        <source>refresh</source>
        <translation>刷新</translation>
    </message>
    <message>
        <source>Device Info</source>
        <translation>设备信息</translation>
    </message>
    <message>
        <source>Collapse</source>
        <translation>收起</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>展开</translation>
    </message>
</context>
<context>
    <name>CSetDevUserIDDlg</name>
    <message>
        <source>The length of DeviceUserID can not be longer than %1.</source>
        <translation>设备用户ID的长度不能超过%1。</translation>
    </message>
    <message>
        <source>Set Device UserID</source>
        <translation>设置设备用户ID</translation>
    </message>
    <message>
        <source>Device UserID</source>
        <translation>设备用户ID</translation>
    </message>
</context>
<context>
    <name>CSetIPDlg</name>
    <message>
        <source>Set IP Address</source>
        <translation>设置IP地址</translation>
    </message>
    <message>
        <source>Interface Info</source>
        <translation>接口信息</translation>
    </message>
    <message>
        <source>Device Info</source>
        <translation>设备信息</translation>
    </message>
    <message>
        <source>MAC Address</source>
        <translation>MAC地址</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>IP地址</translation>
    </message>
    <message>
        <source>Subnet Mask</source>
        <translation>子网掩码</translation>
    </message>
    <message>
        <source>Default Gateway</source>
        <translation>默认网关</translation>
    </message>
    <message>
        <source>set as persistent IP</source>
        <translation>设为永久IP</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Not a valid number. Please enter a number between 0 and 255!</source>
        <translation>无效的数字，请输入0到255之间的数字！</translation>
    </message>
    <message>
        <source>Device not found.</source>
        <translation>未找到设备。</translation>
    </message>
    <message>
        <source>IP or Subnet Mask is empty.</source>
        <translation>IP或子网掩码为空。</translation>
    </message>
    <message>
        <source>IP or Subnet Mask or Gateway is out of range of 0-255.</source>
        <translation>IP、子网掩码或网关超出0-255的范围。</translation>
    </message>
    <message>
        <source>IP or Gateway in the 224.*.*.* to 255.*.*.* range or 0.*.*.* cannot be assigned to a device.</source>
        <translation>不能为设备分配224.*.*.*到255.*.*.*范围内或0.*.*.*的IP或网关。</translation>
    </message>
    <message>
        <source>IP addresses 127.*.*.* cannot be assigned to a device.</source>
        <translation>不能为设备分配127.*.*.*的IP地址。</translation>
    </message>
    <message>
        <source>IP host number can not be all 0.</source>
        <translation>IP主机号不能全为0。</translation>
    </message>
    <message>
        <source>IP host number can not be all 1.</source>
        <translation>IP主机号不能全为1。</translation>
    </message>
    <message>
        <source>Gateway host number can not be all 0.</source>
        <translation>网关主机号不能全为0。</translation>
    </message>
    <message>
        <source>Gateway host number can not be all 1.</source>
        <translation>网关主机号不能全为1。</translation>
    </message>
    <message>
        <source>Device IP address should differ from Interface IP address.</source>
        <translation>设备IP地址应与网卡IP地址不同。</translation>
    </message>
    <message>
        <source>The network segment of the device is different from NIC&apos;s. Are you sure you want to continue?</source>
        <translation>设备的网段与网卡的网段不同，确定要继续吗？</translation>
    </message>
    <message>
        <source>Save Config failed.</source>
        <translation>保存配置失败。</translation>
    </message>
    <message>
        <source>SetIP</source>
        <translation>设置IP</translation>
    </message>
    <message>
        <source>Setting IP, please wait...</source>
        <translation>正在设置IP，请稍候...</translation>
    </message>
    <message>
        <source>Set device IP failed.</source>
        <translation>设置设备IP失败。</translation>
    </message>
    <message>
        <source>Setting persistent IP, please wait...</source>
        <translation>正在设置永久IP，请稍候...</translation>
    </message>
    <message>
        <source>Set persistent IP failed.</source>
        <translation>设置永久IP失败。</translation>
    </message>
</context>
<context>
    <name>CSingleFieldDlg</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>CUnicastDlg</name>
    <message>
        <source>The length of IP can not be longer than %1.</source>
        <translation>IP的长度不能超过%1。</translation>
    </message>
    <message>
        <source>invalid ip</source>
        <translation>无效的IP</translation>
    </message>
    <message>
        <source>Add Remote Camera</source>
        <translation>添加远程相机</translation>
    </message>
    <message>
        <source>Device IP</source>
        <translation>设备IP</translation>
    </message>
</context>
</TS>
