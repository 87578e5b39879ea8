<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>CPropertyForm</name>
    <message>
        <source>DeviceControl</source>
        <translation>设备控制</translation>
    </message>
    <message>
        <source>Device Control</source>
        <translation>设备控制</translation>
    </message>
    <message>
        <source>Category for device information and control.</source>
        <translation>设备信息与控制类别。</translation>
    </message>
    <message>
        <source>DeviceType</source>
        <translation>设备类型</translation>
    </message>
    <message>
        <source>Device Type</source>
        <translation>设备类型</translation>
    </message>
    <message>
        <source>GigE Vision device type.</source>
        <translation>GigE Vision 设备类型。</translation>
    </message>
    <message>
        <source>DeviceScanType</source>
        <translation>设备扫描类型</translation>
    </message>
    <message>
        <source>Device Scan Type</source>
        <translation>设备扫描类型</translation>
    </message>
    <message>
        <source>Scan type of the sensor of the device.</source>
        <translation>设备传感器的扫描类型。</translation>
    </message>
    <message>
        <source>DeviceVendorName</source>
        <translation>设备厂商名称</translation>
    </message>
    <message>
        <source>Device Vendor Name</source>
        <translation>设备厂商名称</translation>
    </message>
    <message>
        <source>Name of the manufacturer of the device.</source>
        <translation>设备制造商的名称。</translation>
    </message>
    <message>
        <source>DeviceModelName</source>
        <translation>设备型号</translation>
    </message>
    <message>
        <source>Device Model Name</source>
        <translation>设备型号</translation>
    </message>
    <message>
        <source>Model name of the device.</source>
        <translation>设备的型号名称。</translation>
    </message>
    <message>
        <source>DeviceFamilyName</source>
        <translation>设备系列名称</translation>
    </message>
    <message>
        <source>Device Family Name</source>
        <translation>设备系列名称</translation>
    </message>
    <message>
        <source>Product family the device belongs to.</source>
        <translation>设备所属的产品系列。</translation>
    </message>
    <message>
        <source>DeviceManufacturerInfo</source>
        <translation>设备制造商信息</translation>
    </message>
    <message>
        <source>Device Manufacturer Info</source>
        <translation>设备制造商信息</translation>
    </message>
    <message>
        <source>Extra information from the manufacturer about this device.</source>
        <translation>制造商提供的关于本设备的附加信息。</translation>
    </message>
    <message>
        <source>DeviceVersion</source>
        <translation>设备版本</translation>
    </message>
    <message>
        <source>Device Version</source>
        <translation>设备版本</translation>
    </message>
    <message>
        <source>Version of the device hardware.</source>
        <translation>设备硬件的版本。</translation>
    </message>
    <message>
        <source>DeviceFirmwareVersion</source>
        <translation>固件版本</translation>
    </message>
    <message>
        <source>Device Firmware Version</source>
        <translation>固件版本</translation>
    </message>
    <message>
        <source>Version of the firmware running on the device.</source>
        <translation>设备当前运行的固件版本。</translation>
    </message>
    <message>
        <source>DeviceSerialNumber</source>
        <translation>设备序列号</translation>
    </message>
    <message>
        <source>Device Serial Number</source>
        <translation>设备序列号</translation>
    </message>
    <message>
        <source>Serial number that identifies the device.</source>
        <translation>用于识别设备的序列号。</translation>
    </message>
    <message>
        <source>DeviceUserID</source>
        <translation>设备用户自定义名称</translation>
    </message>
    <message>
        <source>Device User ID</source>
        <translation>设备用户自定义名称</translation>
    </message>
    <message>
        <source>Name the user gives the device; it is kept in the device.</source>
        <translation>用户为设备设置的名称，保存在设备中。</translation>
    </message>
    <message>
        <source>DeviceLinkThroughputLimitMode</source>
        <translation>设备链路带宽限制模式</translation>
    </message>
    <message>
        <source>Device Link Throughput Limit Mode</source>
        <translation>设备链路带宽限制模式</translation>
    </message>
    <message>
        <source>Turns the limit on the link bandwidth on or off.</source>
        <translation>开启或关闭链路带宽限制。</translation>
    </message>
    <message>
        <source>DeviceLinkThroughputLimit</source>
        <translation>设备链路带宽限制</translation>
    </message>
    <message>
        <source>Device Link Throughput Limit</source>
        <translation>设备链路带宽限制</translation>
    </message>
    <message>
        <source>Highest bandwidth the device may use on its link, in bytes per second.</source>
        <translation>设备在链路上可使用的最大带宽，单位为字节每秒。</translation>
    </message>
    <message>
        <source>DeviceMaxThroughput</source>
        <translation>设备最大吞吐量</translation>
    </message>
    <message>
        <source>Device Max Throughput</source>
        <translation>设备最大吞吐量</translation>
    </message>
    <message>
        <source>Highest data rate the device can send with the current settings, in bytes per second.</source>
        <translation>当前设置下设备可发送的最大数据速率，单位为字节每秒。</translation>
    </message>
    <message>
        <source>DeviceCharacterSet</source>
        <translation>设备字符集</translation>
    </message>
    <message>
        <source>Device Character Set</source>
        <translation>设备字符集</translation>
    </message>
    <message>
        <source>Character set used by the text registers of the device.</source>
        <translation>设备字符串寄存器使用的字符集。</translation>
    </message>
    <message>
        <source>DeviceReset</source>
        <translation>设备复位</translation>
    </message>
    <message>
        <source>Device Reset</source>
        <translation>设备复位</translation>
    </message>
    <message>
        <source>Restarts the device; the connection is lost until it comes back.</source>
        <translation>重启设备，设备恢复前连接将断开。</translation>
    </message>
    <message>
        <source>DeviceTemperatureSelector</source>
        <translation>设备温度选择器</translation>
    </message>
    <message>
        <source>Device Temperature Selector</source>
        <translation>设备温度选择器</translation>
    </message>
    <message>
        <source>Chooses the place on the device whose temperature is read.</source>
        <translation>选择要读取温度的设备部位。</translation>
    </message>
    <message>
        <source>DeviceTemperature</source>
        <translation>设备温度</translation>
    </message>
    <message>
        <source>Device Temperature</source>
        <translation>设备温度</translation>
    </message>
    <message>
        <source>Temperature of the chosen place on the device, in degrees Celsius.</source>
        <translation>所选设备部位的温度，单位为摄氏度。</translation>
    </message>
    <message>
        <source>DeviceTLType</source>
        <translation>设备传输层类型</translation>
    </message>
    <message>
        <source>Device TL Type</source>
        <translation>设备传输层类型</translation>
    </message>
    <message>
        <source>Transport layer type of the device.</source>
        <translation>设备的传输层类型。</translation>
    </message>
    <message>
        <source>DeviceTLVersionMajor</source>
        <translation>传输层主版本号</translation>
    </message>
    <message>
        <source>Device TL Version Major</source>
        <translation>传输层主版本号</translation>
    </message>
    <message>
        <source>Major version of the transport layer the device follows.</source>
        <translation>设备遵循的传输层协议主版本号。</translation>
    </message>
    <message>
        <source>DeviceTLVersionMinor</source>
        <translation>传输层次版本号</translation>
    </message>
    <message>
        <source>Device TL Version Minor</source>
        <translation>传输层次版本号</translation>
    </message>
    <message>
        <source>Minor version of the transport layer the device follows.</source>
        <translation>设备遵循的传输层协议次版本号。</translation>
    </message>
    <message>
        <source>DeviceTLVersionSubMinor</source>
        <translation>传输层修订版本号</translation>
    </message>
    <message>
        <source>Device TL Version Sub Minor</source>
        <translation>传输层修订版本号</translation>
    </message>
    <message>
        <source>Sub-minor version of the transport layer the device follows.</source>
        <translation>设备遵循的传输层协议修订版本号。</translation>
    </message>
    <message>
        <source>DeviceGenCPVersionMajor</source>
        <translation>GenCP主版本号</translation>
    </message>
    <message>
        <source>Device GenCP Version Major</source>
        <translation>GenCP主版本号</translation>
    </message>
    <message>
        <source>Major version of the GenCP protocol the device follows.</source>
        <translation>设备遵循的 GenCP 协议主版本号。</translation>
    </message>
    <message>
        <source>DeviceGenCPVersionMinor</source>
        <translation>GenCP次版本号</translation>
    </message>
    <message>
        <source>Device GenCP Version Minor</source>
        <translation>GenCP次版本号</translation>
    </message>
    <message>
        <source>Minor version of the GenCP protocol the device follows.</source>
        <translation>设备遵循的 GenCP 协议次版本号。</translation>
    </message>
    <message>
        <source>DeviceSFNCVersionMajor</source>
        <translation>SFNC主版本号</translation>
    </message>
    <message>
        <source>Device SFNC Version Major</source>
        <translation>SFNC主版本号</translation>
    </message>
    <message>
        <source>Major version of the feature naming convention the device follows.</source>
        <translation>设备遵循的特征命名规范主版本号。</translation>
    </message>
    <message>
        <source>DeviceSFNCVersionMinor</source>
        <translation>SFNC次版本号</translation>
    </message>
    <message>
        <source>Device SFNC Version Minor</source>
        <translation>SFNC次版本号</translation>
    </message>
    <message>
        <source>Minor version of the feature naming convention the device follows.</source>
        <translation>设备遵循的特征命名规范次版本号。</translation>
    </message>
    <message>
        <source>DeviceSFNCVersionSubMinor</source>
        <translation>SFNC修订版本号</translation>
    </message>
    <message>
        <source>Device SFNC Version Sub Minor</source>
        <translation>SFNC修订版本号</translation>
    </message>
    <message>
        <source>Sub-minor version of the feature naming convention the device follows.</source>
        <translation>设备遵循的特征命名规范修订版本号。</translation>
    </message>
    <message>
        <source>DeviceManifestEntrySelector</source>
        <translation>清单条目选择器</translation>
    </message>
    <message>
        <source>Device Manifest Entry Selector</source>
        <translation>清单条目选择器</translation>
    </message>
    <message>
        <source>Chooses an entry of the manifest table of the device.</source>
        <translation>选择设备清单表中的一个条目。</translation>
    </message>
    <message>
        <source>DeviceManifestXMLMajorVersion</source>
        <translation>清单XML主版本号</translation>
    </message>
    <message>
        <source>Device Manifest XML Major Version</source>
        <translation>清单XML主版本号</translation>
    </message>
    <message>
        <source>Major version of the description file of the chosen manifest entry.</source>
        <translation>所选清单条目的描述文件主版本号。</translation>
    </message>
    <message>
        <source>DeviceManifestXMLMinorVersion</source>
        <translation>清单XML次版本号</translation>
    </message>
    <message>
        <source>Device Manifest XML Minor Version</source>
        <translation>清单XML次版本号</translation>
    </message>
    <message>
        <source>Minor version of the description file of the chosen manifest entry.</source>
        <translation>所选清单条目的描述文件次版本号。</translation>
    </message>
    <message>
        <source>DeviceManifestXMLSubMinorVersion</source>
        <translation>清单XML修订版本号</translation>
    </message>
    <message>
        <source>Device Manifest XML Sub Minor Version</source>
        <translation>清单XML修订版本号</translation>
    </message>
    <message>
        <source>Sub-minor version of the description file of the chosen manifest entry.</source>
        <translation>所选清单条目的描述文件修订版本号。</translation>
    </message>
    <message>
        <source>DeviceManifestSchemaMajorVersion</source>
        <translation>清单架构主版本号</translation>
    </message>
    <message>
        <source>Device Manifest Schema Major Version</source>
        <translation>清单架构主版本号</translation>
    </message>
    <message>
        <source>Major schema version of the description file of the chosen manifest entry.</source>
        <translation>所选清单条目描述文件的架构主版本号。</translation>
    </message>
    <message>
        <source>DeviceManifestSchemaMinorVersion</source>
        <translation>清单架构次版本号</translation>
    </message>
    <message>
        <source>Device Manifest Schema Minor Version</source>
        <translation>清单架构次版本号</translation>
    </message>
    <message>
        <source>Minor schema version of the description file of the chosen manifest entry.</source>
        <translation>所选清单条目描述文件的架构次版本号。</translation>
    </message>
    <message>
        <source>DeviceManifestPrimaryURL</source>
        <translation>清单主URL</translation>
    </message>
    <message>
        <source>Device Manifest Primary URL</source>
        <translation>清单主URL</translation>
    </message>
    <message>
        <source>First location of the description file of the chosen manifest entry.</source>
        <translation>所选清单条目描述文件的首选位置。</translation>
    </message>
    <message>
        <source>DeviceManifestSecondaryURL</source>
        <translation>清单备用URL</translation>
    </message>
    <message>
        <source>Device Manifest Secondary URL</source>
        <translation>清单备用URL</translation>
    </message>
    <message>
        <source>Second location of the description file of the chosen manifest entry.</source>
        <translation>所选清单条目描述文件的备用位置。</translation>
    </message>
    <message>
        <source>DeviceID</source>
        <translation>设备ID</translation>
    </message>
    <message>
        <source>Device ID</source>
        <translation>设备ID</translation>
    </message>
    <message>
        <source>Unique identifier of the device, such as its serial number.</source>
        <translation>设备的唯一标识，例如序列号。</translation>
    </message>
    <message>
        <source>DeviceEventChannelCount</source>
        <translation>事件通道数</translation>
    </message>
    <message>
        <source>Device Event Channel Count</source>
        <translation>事件通道数</translation>
    </message>
    <message>
        <source>Number of event channels the device offers.</source>
        <translation>设备提供的事件通道数量。</translation>
    </message>
    <message>
        <source>DeviceStreamChannelCount</source>
        <translation>流通道数</translation>
    </message>
    <message>
        <source>Device Stream Channel Count</source>
        <translation>流通道数</translation>
    </message>
    <message>
        <source>Number of stream channels the device offers.</source>
        <translation>设备提供的流通道数量。</translation>
    </message>
    <message>
        <source>DeviceStreamChannelSelector</source>
        <translation>流通道选择器</translation>
    </message>
    <message>
        <source>Device Stream Channel Selector</source>
        <translation>流通道选择器</translation>
    </message>
    <message>
        <source>Chooses the stream channel the following features refer to.</source>
        <translation>选择后续特征所作用的流通道。</translation>
    </message>
    <message>
        <source>DeviceStreamChannelType</source>
        <translation>流通道类型</translation>
    </message>
    <message>
        <source>Device Stream Channel Type</source>
        <translation>流通道类型</translation>
    </message>
    <message>
        <source>Tells whether the chosen stream channel sends or receives.</source>
        <translation>所选流通道是发送端还是接收端。</translation>
    </message>
    <message>
        <source>DeviceStreamChannelLink</source>
        <translation>流通道链路</translation>
    </message>
    <message>
        <source>Device Stream Channel Link</source>
        <translation>流通道链路</translation>
    </message>
    <message>
        <source>Index of the link that carries the chosen stream channel.</source>
        <translation>承载所选流通道的链路索引。</translation>
    </message>
    <message>
        <source>DeviceStreamChannelEndianness</source>
        <translation>流通道字节序</translation>
    </message>
    <message>
        <source>Device Stream Channel Endianness</source>
        <translation>流通道字节序</translation>
    </message>
    <message>
        <source>Byte order of the pixels sent on the chosen stream channel.</source>
        <translation>所选流通道上发送像素的字节序。</translation>
    </message>
    <message>
        <source>DeviceStreamChannelPacketSize</source>
        <translation>流通道包大小</translation>
    </message>
    <message>
        <source>Device Stream Channel Packet Size</source>
        <translation>流通道包大小</translation>
    </message>
    <message>
        <source>Size of the stream packets of the chosen channel, in bytes.</source>
        <translation>所选流通道的数据包大小，单位为字节。</translation>
    </message>
    <message>
        <source>DeviceLinkSelector</source>
        <translation>链路选择器</translation>
    </message>
    <message>
        <source>Device Link Selector</source>
        <translation>链路选择器</translation>
    </message>
    <message>
        <source>Chooses the link the following features refer to.</source>
        <translation>选择后续特征所作用的链路。</translation>
    </message>
    <message>
        <source>DeviceLinkSpeed</source>
        <translation>链路速度</translation>
    </message>
    <message>
        <source>Device Link Speed</source>
        <translation>链路速度</translation>
    </message>
    <message>
        <source>Speed of the chosen link, in bytes per second.</source>
        <translation>所选链路的速度，单位为字节每秒。</translation>
    </message>
    <message>
        <source>DeviceLinkConnectionCount</source>
        <translation>链路连接数</translation>
    </message>
    <message>
        <source>Device Link Connection Count</source>
        <translation>链路连接数</translation>
    </message>
    <message>
        <source>Number of physical connections of the chosen link.</source>
        <translation>所选链路的物理连接数量。</translation>
    </message>
    <message>
        <source>DeviceLinkHeartbeatMode</source>
        <translation>链路心跳模式</translation>
    </message>
    <message>
        <source>Device Link Heartbeat Mode</source>
        <translation>链路心跳模式</translation>
    </message>
    <message>
        <source>Turns the heartbeat of the control link on or off.</source>
        <translation>开启或关闭控制链路的心跳。</translation>
    </message>
    <message>
        <source>DeviceLinkHeartbeatTimeout</source>
        <translation>链路心跳超时</translation>
    </message>
    <message>
        <source>Device Link Heartbeat Timeout</source>
        <translation>链路心跳超时</translation>
    </message>
    <message>
        <source>Time after which the device drops a silent host, in microseconds.</source>
        <translation>主机无响应多久后设备断开连接，单位为微秒。</translation>
    </message>
    <message>
        <source>DeviceLinkCommandTimeout</source>
        <translation>链路命令超时</translation>
    </message>
    <message>
        <source>Device Link Command Timeout</source>
        <translation>链路命令超时</translation>
    </message>
    <message>
        <source>Longest time the device may take to answer a command, in microseconds.</source>
        <translation>设备应答一条命令所允许的最长时间，单位为微秒。</translation>
    </message>
    <message>
        <source>DeviceRegistersStreamingStart</source>
        <translation>寄存器批量写入开始</translation>
    </message>
    <message>
        <source>Device Registers Streaming Start</source>
        <translation>寄存器批量写入开始</translation>
    </message>
    <message>
        <source>Marks the start of a batch of register writes.</source>
        <translation>标记一批寄存器写入的开始。</translation>
    </message>
    <message>
        <source>DeviceRegistersStreamingEnd</source>
        <translation>寄存器批量写入结束</translation>
    </message>
    <message>
        <source>Device Registers Streaming End</source>
        <translation>寄存器批量写入结束</translation>
    </message>
    <message>
        <source>Marks the end of a batch of register writes and applies them.</source>
        <translation>标记一批寄存器写入的结束并使其生效。</translation>
    </message>
    <message>
        <source>DeviceRegistersCheck</source>
        <translation>寄存器检查</translation>
    </message>
    <message>
        <source>Device Registers Check</source>
        <translation>寄存器检查</translation>
    </message>
    <message>
        <source>Checks whether the register values written so far fit together.</source>
        <translation>检查已写入的寄存器值是否相互匹配。</translation>
    </message>
    <message>
        <source>DeviceRegistersValid</source>
        <translation>寄存器有效</translation>
    </message>
    <message>
        <source>Device Registers Valid</source>
        <translation>寄存器有效</translation>
    </message>
    <message>
        <source>Tells whether the current register values fit together.</source>
        <translation>当前寄存器值是否相互匹配。</translation>
    </message>
    <message>
        <source>DeviceRegistersEndianness</source>
        <translation>寄存器字节序</translation>
    </message>
    <message>
        <source>Device Registers Endianness</source>
        <translation>寄存器字节序</translation>
    </message>
    <message>
        <source>Byte order of the registers of the device.</source>
        <translation>设备寄存器的字节序。</translation>
    </message>
    <message>
        <source>DeviceFeaturePersistenceStart</source>
        <translation>特征保存开始</translation>
    </message>
    <message>
        <source>Device Feature Persistence Start</source>
        <translation>特征保存开始</translation>
    </message>
    <message>
        <source>Starts storing the current features in the device.</source>
        <translation>开始将当前特征保存到设备中。</translation>
    </message>
    <message>
        <source>DeviceFeaturePersistenceEnd</source>
        <translation>特征保存结束</translation>
    </message>
    <message>
        <source>Device Feature Persistence End</source>
        <translation>特征保存结束</translation>
    </message>
    <message>
        <source>Ends storing the current features in the device.</source>
        <translation>结束将当前特征保存到设备中。</translation>
    </message>
    <message>
        <source>DeviceIndicatorMode</source>
        <translation>设备指示灯模式</translation>
    </message>
    <message>
        <source>Device Indicator Mode</source>
        <translation>设备指示灯模式</translation>
    </message>
    <message>
        <source>Sets how the status lights of the device behave.</source>
        <translation>设置设备状态指示灯的工作方式。</translation>
    </message>
    <message>
        <source>DeviceClockSelector</source>
        <translation>设备时钟选择器</translation>
    </message>
    <message>
        <source>Device Clock Selector</source>
        <translation>设备时钟选择器</translation>
    </message>
    <message>
        <source>Chooses the clock of the device the frequency refers to.</source>
        <translation>选择频率所对应的设备时钟。</translation>
    </message>
    <message>
        <source>DeviceClockFrequency</source>
        <translation>设备时钟频率</translation>
    </message>
    <message>
        <source>Device Clock Frequency</source>
        <translation>设备时钟频率</translation>
    </message>
    <message>
        <source>Frequency of the chosen clock, in hertz.</source>
        <translation>所选时钟的频率，单位为赫兹。</translation>
    </message>
    <message>
        <source>DeviceSerialPortSelector</source>
        <translation>串口选择器</translation>
    </message>
    <message>
        <source>Device Serial Port Selector</source>
        <translation>串口选择器</translation>
    </message>
    <message>
        <source>Chooses the serial port of the device.</source>
        <translation>选择设备的串口。</translation>
    </message>
    <message>
        <source>DeviceSerialPortBaudRate</source>
        <translation>串口波特率</translation>
    </message>
    <message>
        <source>Device Serial Port Baud Rate</source>
        <translation>串口波特率</translation>
    </message>
    <message>
        <source>Baud rate of the chosen serial port.</source>
        <translation>所选串口的波特率。</translation>
    </message>
    <message>
        <source>DeviceUptime</source>
        <translation>设备运行时间</translation>
    </message>
    <message>
        <source>Device Uptime</source>
        <translation>设备运行时间</translation>
    </message>
    <message>
        <source>Time since the device was powered up, in seconds.</source>
        <translation>设备上电以来的时间，单位为秒。</translation>
    </message>
    <message>
        <source>DevicePowerSupplySelector</source>
        <translation>电源选择器</translation>
    </message>
    <message>
        <source>Device Power Supply Selector</source>
        <translation>电源选择器</translation>
    </message>
    <message>
        <source>Chooses the power supply whose values are read.</source>
        <translation>选择要读取数值的电源。</translation>
    </message>
    <message>
        <source>DevicePowerSupplyVoltage</source>
        <translation>电源电压</translation>
    </message>
    <message>
        <source>Device Power Supply Voltage</source>
        <translation>电源电压</translation>
    </message>
    <message>
        <source>Voltage of the chosen power supply, in volts.</source>
        <translation>所选电源的电压，单位为伏特。</translation>
    </message>
    <message>
        <source>DeviceFactoryReset</source>
        <translation>恢复出厂设置</translation>
    </message>
    <message>
        <source>Device Factory Reset</source>
        <translation>恢复出厂设置</translation>
    </message>
    <message>
        <source>Returns every setting of the device to its factory value and restarts it.</source>
        <translation>将设备所有设置恢复为出厂值并重启。</translation>
    </message>
    <message>
        <source>TimestampLatch</source>
        <translation>时间戳锁存</translation>
    </message>
    <message>
        <source>Timestamp Latch</source>
        <translation>时间戳锁存</translation>
    </message>
    <message>
        <source>Copies the current timestamp into the latched timestamp value.</source>
        <translation>将当前时间戳复制到锁存值中。</translation>
    </message>
    <message>
        <source>TimestampLatchValue</source>
        <translation>锁存时间戳值</translation>
    </message>
    <message>
        <source>Timestamp Latch Value</source>
        <translation>锁存时间戳值</translation>
    </message>
    <message>
        <source>Timestamp captured by the last latch, in ticks.</source>
        <translation>最近一次锁存的时间戳，单位为时钟周期。</translation>
    </message>
    <message>
        <source>TimestampReset</source>
        <translation>时间戳复位</translation>
    </message>
    <message>
        <source>Timestamp Reset</source>
        <translation>时间戳复位</translation>
    </message>
    <message>
        <source>Sets the timestamp counter of the device back to zero.</source>
        <translation>将设备时间戳计数器清零。</translation>
    </message>
    <message>
        <source>Timestamp</source>
        <translation>时间戳</translation>
    </message>
    <message>
        <source>Current value of the timestamp counter of the device.</source>
        <translation>设备时间戳计数器的当前值。</translation>
    </message>
    <message>
        <source>ImageFormatControl</source>
        <translation>图像格式控制</translation>
    </message>
    <message>
        <source>Image Format Control</source>
        <translation>图像格式控制</translation>
    </message>
    <message>
        <source>Category for the size, position and format of the image.</source>
        <translation>图像尺寸、位置与格式相关的类别。</translation>
    </message>
    <message>
        <source>SensorWidth</source>
        <translation>传感器宽度</translation>
    </message>
    <message>
        <source>Sensor Width</source>
        <translation>传感器宽度</translation>
    </message>
    <message>
        <source>Width of the sensor in pixels.</source>
        <translation>传感器的宽度，单位为像素。</translation>
    </message>
    <message>
        <source>SensorHeight</source>
        <translation>传感器高度</translation>
    </message>
    <message>
        <source>Sensor Height</source>
        <translation>传感器高度</translation>
    </message>
    <message>
        <source>Height of the sensor in pixels.</source>
        <translation>传感器的高度，单位为像素。</translation>
    </message>
    <message>
        <source>SensorPixelWidth</source>
        <translation>像元宽度</translation>
    </message>
    <message>
        <source>Sensor Pixel Width</source>
        <translation>像元宽度</translation>
    </message>
    <message>
        <source>Physical width of one sensor pixel, in micrometres.</source>
        <translation>单个像元的物理宽度，单位为微米。</translation>
    </message>
    <message>
        <source>SensorPixelHeight</source>
        <translation>像元高度</translation>
    </message>
    <message>
        <source>Sensor Pixel Height</source>
        <translation>像元高度</translation>
    </message>
    <message>
        <source>Physical height of one sensor pixel, in micrometres.</source>
        <translation>单个像元的物理高度，单位为微米。</translation>
    </message>
    <message>
        <source>SensorName</source>
        <translation>传感器名称</translation>
    </message>
    <message>
        <source>Sensor Name</source>
        <translation>传感器名称</translation>
    </message>
    <message>
        <source>Name of the image sensor.</source>
        <translation>图像传感器的名称。</translation>
    </message>
    <message>
        <source>SensorShutterMode</source>
        <translation>传感器快门模式</translation>
    </message>
    <message>
        <source>Sensor Shutter Mode</source>
        <translation>传感器快门模式</translation>
    </message>
    <message>
        <source>Shutter type used by the sensor.</source>
        <translation>传感器使用的快门类型。</translation>
    </message>
    <message>
        <source>SensorTaps</source>
        <translation>传感器抽头数</translation>
    </message>
    <message>
        <source>Sensor Taps</source>
        <translation>传感器抽头数</translation>
    </message>
    <message>
        <source>Number of taps read from the sensor at once.</source>
        <translation>同时从传感器读出的抽头数量。</translation>
    </message>
    <message>
        <source>SensorDigitizationTaps</source>
        <translation>传感器数字化抽头数</translation>
    </message>
    <message>
        <source>Sensor Digitization Taps</source>
        <translation>传感器数字化抽头数</translation>
    </message>
    <message>
        <source>Number of digitizers the sensor uses.</source>
        <translation>传感器使用的数字化器数量。</translation>
    </message>
    <message>
        <source>WidthMax</source>
        <translation>最大宽度</translation>
    </message>
    <message>
        <source>Width Max</source>
        <translation>最大宽度</translation>
    </message>
    <message>
        <source>Largest image width the current settings allow.</source>
        <translation>当前设置允许的最大图像宽度。</translation>
    </message>
    <message>
        <source>HeightMax</source>
        <translation>最大高度</translation>
    </message>
    <message>
        <source>Height Max</source>
        <translation>最大高度</translation>
    </message>
    <message>
        <source>Largest image height the current settings allow.</source>
        <translation>当前设置允许的最大图像高度。</translation>
    </message>
    <message>
        <source>RegionSelector</source>
        <translation>区域选择器</translation>
    </message>
    <message>
        <source>Region Selector</source>
        <translation>区域选择器</translation>
    </message>
    <message>
        <source>Chooses the image region the following features refer to.</source>
        <translation>选择后续特征所作用的图像区域。</translation>
    </message>
    <message>
        <source>RegionMode</source>
        <translation>区域模式</translation>
    </message>
    <message>
        <source>Region Mode</source>
        <translation>区域模式</translation>
    </message>
    <message>
        <source>Turns the chosen region on or off.</source>
        <translation>开启或关闭所选区域。</translation>
    </message>
    <message>
        <source>RegionDestination</source>
        <translation>区域目标</translation>
    </message>
    <message>
        <source>Region Destination</source>
        <translation>区域目标</translation>
    </message>
    <message>
        <source>Stream that receives the data of the chosen region.</source>
        <translation>接收所选区域数据的数据流。</translation>
    </message>
    <message>
        <source>ROISelector</source>
        <translation>ROI选择器</translation>
    </message>
    <message>
        <source>ROI Selector</source>
        <translation>ROI选择器</translation>
    </message>
    <message>
        <source>Chooses the region of interest the following features refer to.</source>
        <translation>选择后续特征所作用的感兴趣区域。</translation>
    </message>
    <message>
        <source>ROIEnable</source>
        <translation>ROI使能</translation>
    </message>
    <message>
        <source>ROI Enable</source>
        <translation>ROI使能</translation>
    </message>
    <message>
        <source>Turns the chosen region of interest on or off.</source>
        <translation>开启或关闭所选感兴趣区域。</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>宽度</translation>
    </message>
    <message>
        <source>Width of the image sent by the device, in pixels.</source>
        <translation>设备输出图像的宽度，单位为像素。</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>Height of the image sent by the device, in pixels.</source>
        <translation>设备输出图像的高度，单位为像素。</translation>
    </message>
    <message>
        <source>OffsetX</source>
        <translation>水平偏移</translation>
    </message>
    <message>
        <source>Offset X</source>
        <translation>水平偏移</translation>
    </message>
    <message>
        <source>Horizontal distance from the sensor origin to the image, in pixels.</source>
        <translation>图像相对传感器原点的水平偏移，单位为像素。</translation>
    </message>
    <message>
        <source>OffsetY</source>
        <translation>垂直偏移</translation>
    </message>
    <message>
        <source>Offset Y</source>
        <translation>垂直偏移</translation>
    </message>
    <message>
        <source>Vertical distance from the sensor origin to the image, in pixels.</source>
        <translation>图像相对传感器原点的垂直偏移，单位为像素。</translation>
    </message>
    <message>
        <source>LinePitch</source>
        <translation>行间距</translation>
    </message>
    <message>
        <source>Line Pitch</source>
        <translation>行间距</translation>
    </message>
    <message>
        <source>Distance between the starts of two lines of the image, in bytes.</source>
        <translation>图像相邻两行起始位置的距离，单位为字节。</translation>
    </message>
    <message>
        <source>BinningSelector</source>
        <translation>合并选择器</translation>
    </message>
    <message>
        <source>Binning Selector</source>
        <translation>合并选择器</translation>
    </message>
    <message>
        <source>Chooses where binning is applied, on the sensor or in the device.</source>
        <translation>选择在传感器还是设备内部进行像素合并。</translation>
    </message>
    <message>
        <source>BinningMode</source>
        <translation>合并模式</translation>
    </message>
    <message>
        <source>Binning Mode</source>
        <translation>合并模式</translation>
    </message>
    <message>
        <source>Sets how the binned pixels are combined.</source>
        <translation>设置合并像素的组合方式。</translation>
    </message>
    <message>
        <source>BinningHorizontalMode</source>
        <translation>水平合并模式</translation>
    </message>
    <message>
        <source>Binning Horizontal Mode</source>
        <translation>水平合并模式</translation>
    </message>
    <message>
        <source>Sets how horizontally binned pixels are combined.</source>
        <translation>设置水平合并像素的组合方式。</translation>
    </message>
    <message>
        <source>BinningVerticalMode</source>
        <translation>垂直合并模式</translation>
    </message>
    <message>
        <source>Binning Vertical Mode</source>
        <translation>垂直合并模式</translation>
    </message>
    <message>
        <source>Sets how vertically binned pixels are combined.</source>
        <translation>设置垂直合并像素的组合方式。</translation>
    </message>
    <message>
        <source>BinningHorizontal</source>
        <translation>水平合并</translation>
    </message>
    <message>
        <source>Binning Horizontal</source>
        <translation>水平合并</translation>
    </message>
    <message>
        <source>Number of horizontal pixels combined into one.</source>
        <translation>水平方向合并为一个像素的像素数。</translation>
    </message>
    <message>
        <source>BinningVertical</source>
        <translation>垂直合并</translation>
    </message>
    <message>
        <source>Binning Vertical</source>
        <translation>垂直合并</translation>
    </message>
    <message>
        <source>Number of vertical pixels combined into one.</source>
        <translation>垂直方向合并为一个像素的像素数。</translation>
    </message>
    <message>
        <source>DecimationMode</source>
        <translation>抽样模式</translation>
    </message>
    <message>
        <source>Decimation Mode</source>
        <translation>抽样模式</translation>
    </message>
    <message>
        <source>Sets how pixels are dropped when decimating.</source>
        <translation>设置抽样时舍弃像素的方式。</translation>
    </message>
    <message>
        <source>DecimationHorizontalMode</source>
        <translation>水平抽样模式</translation>
    </message>
    <message>
        <source>Decimation Horizontal Mode</source>
        <translation>水平抽样模式</translation>
    </message>
    <message>
        <source>Sets how horizontal decimation drops pixels.</source>
        <translation>设置水平抽样舍弃像素的方式。</translation>
    </message>
    <message>
        <source>DecimationVerticalMode</source>
        <translation>垂直抽样模式</translation>
    </message>
    <message>
        <source>Decimation Vertical Mode</source>
        <translation>垂直抽样模式</translation>
    </message>
    <message>
        <source>Sets how vertical decimation drops pixels.</source>
        <translation>设置垂直抽样舍弃像素的方式。</translation>
    </message>
    <message>
        <source>DecimationHorizontal</source>
        <translation>水平抽样</translation>
    </message>
    <message>
        <source>Decimation Horizontal</source>
        <translation>水平抽样</translation>
    </message>
    <message>
        <source>Keeps one pixel out of this many in each line.</source>
        <translation>每行中每隔多少个像素保留一个。</translation>
    </message>
    <message>
        <source>DecimationVertical</source>
        <translation>垂直抽样</translation>
    </message>
    <message>
        <source>Decimation Vertical</source>
        <translation>垂直抽样</translation>
    </message>
    <message>
        <source>Keeps one line out of this many.</source>
        <translation>每隔多少行保留一行。</translation>
    </message>
    <message>
        <source>ReverseX</source>
        <translation>水平翻转</translation>
    </message>
    <message>
        <source>Reverse X</source>
        <translation>水平翻转</translation>
    </message>
    <message>
        <source>Mirrors the image horizontally.</source>
        <translation>对图像进行水平镜像。</translation>
    </message>
    <message>
        <source>ReverseY</source>
        <translation>垂直翻转</translation>
    </message>
    <message>
        <source>Reverse Y</source>
        <translation>垂直翻转</translation>
    </message>
    <message>
        <source>Mirrors the image vertically.</source>
        <translation>对图像进行垂直镜像。</translation>
    </message>
    <message>
        <source>PixelFormat</source>
        <translation>像素格式</translation>
    </message>
    <message>
        <source>Pixel Format</source>
        <translation>像素格式</translation>
    </message>
    <message>
        <source>Format of the pixels sent by the device.</source>
        <translation>设备输出像素的格式。</translation>
    </message>
    <message>
        <source>PixelFormatInfoSelector</source>
        <translation>像素格式信息选择器</translation>
    </message>
    <message>
        <source>Pixel Format Info Selector</source>
        <translation>像素格式信息选择器</translation>
    </message>
    <message>
        <source>Chooses the pixel format whose identifier is shown.</source>
        <translation>选择要显示标识的像素格式。</translation>
    </message>
    <message>
        <source>PixelFormatInfoID</source>
        <translation>像素格式标识</translation>
    </message>
    <message>
        <source>Pixel Format Info ID</source>
        <translation>像素格式标识</translation>
    </message>
    <message>
        <source>Numeric identifier of the chosen pixel format.</source>
        <translation>所选像素格式的数字标识。</translation>
    </message>
    <message>
        <source>PixelCoding</source>
        <translation>像素编码</translation>
    </message>
    <message>
        <source>Pixel Coding</source>
        <translation>像素编码</translation>
    </message>
    <message>
        <source>Coding of the pixels of the image.</source>
        <translation>图像像素的编码方式。</translation>
    </message>
    <message>
        <source>PixelSize</source>
        <translation>像素位深</translation>
    </message>
    <message>
        <source>Pixel Size</source>
        <translation>像素位深</translation>
    </message>
    <message>
        <source>Number of bits per pixel of the image.</source>
        <translation>图像每个像素的位数。</translation>
    </message>
    <message>
        <source>PixelColorFilter</source>
        <translation>像素滤色阵列</translation>
    </message>
    <message>
        <source>Pixel Color Filter</source>
        <translation>像素滤色阵列</translation>
    </message>
    <message>
        <source>Colour filter pattern of the sensor.</source>
        <translation>传感器的滤色阵列排列方式。</translation>
    </message>
    <message>
        <source>PixelDynamicRangeMin</source>
        <translation>像素动态范围最小值</translation>
    </message>
    <message>
        <source>Pixel Dynamic Range Min</source>
        <translation>像素动态范围最小值</translation>
    </message>
    <message>
        <source>Smallest value a pixel can take.</source>
        <translation>像素可取的最小值。</translation>
    </message>
    <message>
        <source>PixelDynamicRangeMax</source>
        <translation>像素动态范围最大值</translation>
    </message>
    <message>
        <source>Pixel Dynamic Range Max</source>
        <translation>像素动态范围最大值</translation>
    </message>
    <message>
        <source>Largest value a pixel can take.</source>
        <translation>像素可取的最大值。</translation>
    </message>
    <message>
        <source>TestPatternGeneratorSelector</source>
        <translation>测试图案生成器选择器</translation>
    </message>
    <message>
        <source>Test Pattern Generator Selector</source>
        <translation>测试图案生成器选择器</translation>
    </message>
    <message>
        <source>Chooses which part of the device generates the test pattern.</source>
        <translation>选择由设备哪一部分生成测试图案。</translation>
    </message>
    <message>
        <source>TestPattern</source>
        <translation>测试图案</translation>
    </message>
    <message>
        <source>Test Pattern</source>
        <translation>测试图案</translation>
    </message>
    <message>
        <source>Test pattern sent in place of the sensor image.</source>
        <translation>替代传感器图像输出的测试图案。</translation>
    </message>
    <message>
        <source>TestImageSelector</source>
        <translation>测试图像选择器</translation>
    </message>
    <message>
        <source>Test Image Selector</source>
        <translation>测试图像选择器</translation>
    </message>
    <message>
        <source>Test image sent in place of the sensor image.</source>
        <translation>替代传感器图像输出的测试图像。</translation>
    </message>
    <message>
        <source>Deinterlacing</source>
        <translation>去隔行</translation>
    </message>
    <message>
        <source>Sets how interlaced images are combined.</source>
        <translation>设置隔行图像的合成方式。</translation>
    </message>
    <message>
        <source>ImageCompressionMode</source>
        <translation>图像压缩模式</translation>
    </message>
    <message>
        <source>Image Compression Mode</source>
        <translation>图像压缩模式</translation>
    </message>
    <message>
        <source>Compression applied to the images before they are sent.</source>
        <translation>图像发送前采用的压缩方式。</translation>
    </message>
    <message>
        <source>ImageCompressionRateOption</source>
        <translation>图像压缩码率选项</translation>
    </message>
    <message>
        <source>Image Compression Rate Option</source>
        <translation>图像压缩码率选项</translation>
    </message>
    <message>
        <source>Chooses whether compression keeps a fixed quality or a fixed bit rate.</source>
        <translation>选择压缩保持固定质量还是固定码率。</translation>
    </message>
    <message>
        <source>ImageCompressionQuality</source>
        <translation>图像压缩质量</translation>
    </message>
    <message>
        <source>Image Compression Quality</source>
        <translation>图像压缩质量</translation>
    </message>
    <message>
        <source>Quality of the compressed images, higher is better.</source>
        <translation>压缩图像的质量，数值越高质量越好。</translation>
    </message>
    <message>
        <source>ImageCompressionBitrate</source>
        <translation>图像压缩码率</translation>
    </message>
    <message>
        <source>Image Compression Bitrate</source>
        <translation>图像压缩码率</translation>
    </message>
    <message>
        <source>Bit rate of the compressed stream, in megabits per second.</source>
        <translation>压缩数据流的码率，单位为兆比特每秒。</translation>
    </message>
    <message>
        <source>ImageCompressionJPEGFormatOption</source>
        <translation>JPEG格式选项</translation>
    </message>
    <message>
        <source>Image Compression JPEG Format Option</source>
        <translation>JPEG格式选项</translation>
    </message>
    <message>
        <source>Chooses the JPEG variant used for compression.</source>
        <translation>选择压缩时使用的 JPEG 格式。</translation>
    </message>
    <message>
        <source>DeviceTapGeometry</source>
        <translation>抽头几何结构</translation>
    </message>
    <message>
        <source>Device Tap Geometry</source>
        <translation>抽头几何结构</translation>
    </message>
    <message>
        <source>Layout of the taps that read the sensor.</source>
        <translation>读出传感器的抽头排列方式。</translation>
    </message>
    <message>
        <source>AcquisitionControl</source>
        <translation>采集控制</translation>
    </message>
    <message>
        <source>Acquisition Control</source>
        <translation>采集控制</translation>
    </message>
    <message>
        <source>Category for starting, stopping and triggering image acquisition.</source>
        <translation>图像采集的启动、停止与触发相关的类别。</translation>
    </message>
    <message>
        <source>AcquisitionMode</source>
        <translation>采集模式</translation>
    </message>
    <message>
        <source>Acquisition Mode</source>
        <translation>采集模式</translation>
    </message>
    <message>
        <source>Sets how many frames one acquisition takes.</source>
        <translation>设置一次采集获取的帧数方式。</translation>
    </message>
    <message>
        <source>AcquisitionStart</source>
        <translation>开始采集</translation>
    </message>
    <message>
        <source>Acquisition Start</source>
        <translation>开始采集</translation>
    </message>
    <message>
        <source>Starts acquiring images.</source>
        <translation>开始采集图像。</translation>
    </message>
    <message>
        <source>AcquisitionStop</source>
        <translation>停止采集</translation>
    </message>
    <message>
        <source>Acquisition Stop</source>
        <translation>停止采集</translation>
    </message>
    <message>
        <source>Stops acquiring images at the end of the current frame.</source>
        <translation>在当前帧结束后停止采集图像。</translation>
    </message>
    <message>
        <source>AcquisitionAbort</source>
        <translation>中止采集</translation>
    </message>
    <message>
        <source>Acquisition Abort</source>
        <translation>中止采集</translation>
    </message>
    <message>
        <source>Stops acquiring images at once, dropping the current frame.</source>
        <translation>立即停止采集图像并丢弃当前帧。</translation>
    </message>
    <message>
        <source>AcquisitionArm</source>
        <translation>采集准备</translation>
    </message>
    <message>
        <source>Acquisition Arm</source>
        <translation>采集准备</translation>
    </message>
    <message>
        <source>Prepares the device to acquire so that the start comes quickly.</source>
        <translation>让设备做好采集准备以便快速开始。</translation>
    </message>
    <message>
        <source>AcquisitionFrameCount</source>
        <translation>采集帧数</translation>
    </message>
    <message>
        <source>Acquisition Frame Count</source>
        <translation>采集帧数</translation>
    </message>
    <message>
        <source>Number of frames taken in multi-frame mode.</source>
        <translation>多帧模式下采集的帧数。</translation>
    </message>
    <message>
        <source>AcquisitionBurstFrameCount</source>
        <translation>突发帧数</translation>
    </message>
    <message>
        <source>Acquisition Burst Frame Count</source>
        <translation>突发帧数</translation>
    </message>
    <message>
        <source>Number of frames taken for each burst trigger.</source>
        <translation>每次突发触发采集的帧数。</translation>
    </message>
    <message>
        <source>AcquisitionFrameRate</source>
        <translation>采集帧率</translation>
    </message>
    <message>
        <source>Acquisition Frame Rate</source>
        <translation>采集帧率</translation>
    </message>
    <message>
        <source>Rate at which frames are taken, in frames per second.</source>
        <translation>采集图像的帧率，单位为帧每秒。</translation>
    </message>
    <message>
        <source>AcquisitionFrameRateEnable</source>
        <translation>帧率控制使能</translation>
    </message>
    <message>
        <source>Acquisition Frame Rate Enable</source>
        <translation>帧率控制使能</translation>
    </message>
    <message>
        <source>Turns the manual frame rate limit on or off.</source>
        <translation>开启或关闭手动帧率限制。</translation>
    </message>
    <message>
        <source>AcquisitionFrameRateAbs</source>
        <translation>采集帧率(绝对值)</translation>
    </message>
    <message>
        <source>Acquisition Frame Rate (Abs)</source>
        <translation>采集帧率(绝对值)</translation>
    </message>
    <message>
        <source>Frame rate as an absolute value, in frames per second.</source>
        <translation>以绝对值表示的帧率，单位为帧每秒。</translation>
    </message>
    <message>
        <source>AcquisitionLineRate</source>
        <translation>采集行频</translation>
    </message>
    <message>
        <source>Acquisition Line Rate</source>
        <translation>采集行频</translation>
    </message>
    <message>
        <source>Rate at which lines are taken, in hertz.</source>
        <translation>采集图像行的频率，单位为赫兹。</translation>
    </message>
    <message>
        <source>AcquisitionLineRateEnable</source>
        <translation>行频控制使能</translation>
    </message>
    <message>
        <source>Acquisition Line Rate Enable</source>
        <translation>行频控制使能</translation>
    </message>
    <message>
        <source>Turns the manual line rate limit on or off.</source>
        <translation>开启或关闭手动行频限制。</translation>
    </message>
    <message>
        <source>AcquisitionStatusSelector</source>
        <translation>采集状态选择器</translation>
    </message>
    <message>
        <source>Acquisition Status Selector</source>
        <translation>采集状态选择器</translation>
    </message>
    <message>
        <source>Chooses the acquisition state that is read.</source>
        <translation>选择要读取的采集状态。</translation>
    </message>
    <message>
        <source>AcquisitionStatus</source>
        <translation>采集状态</translation>
    </message>
    <message>
        <source>Acquisition Status</source>
        <translation>采集状态</translation>
    </message>
    <message>
        <source>Tells whether the chosen acquisition state is active.</source>
        <translation>所选采集状态当前是否有效。</translation>
    </message>
    <message>
        <source>ResultingFrameRate</source>
        <translation>实际帧率</translation>
    </message>
    <message>
        <source>Resulting Frame Rate</source>
        <translation>实际帧率</translation>
    </message>
    <message>
        <source>Frame rate the device reaches with the current settings.</source>
        <translation>当前设置下设备实际达到的帧率。</translation>
    </message>
    <message>
        <source>TriggerSelector</source>
        <translation>触发选择器</translation>
    </message>
    <message>
        <source>Trigger Selector</source>
        <translation>触发选择器</translation>
    </message>
    <message>
        <source>Chooses the trigger the following features refer to.</source>
        <translation>选择后续特征所作用的触发类型。</translation>
    </message>
    <message>
        <source>TriggerMode</source>
        <translation>触发模式</translation>
    </message>
    <message>
        <source>Trigger Mode</source>
        <translation>触发模式</translation>
    </message>
    <message>
        <source>Turns the chosen trigger on or off.</source>
        <translation>开启或关闭所选触发。</translation>
    </message>
    <message>
        <source>TriggerSoftware</source>
        <translation>软触发</translation>
    </message>
    <message>
        <source>Trigger Software</source>
        <translation>软触发</translation>
    </message>
    <message>
        <source>Sends a software trigger to the chosen trigger.</source>
        <translation>向所选触发发送一次软件触发。</translation>
    </message>
    <message>
        <source>TriggerSource</source>
        <translation>触发源</translation>
    </message>
    <message>
        <source>Trigger Source</source>
        <translation>触发源</translation>
    </message>
    <message>
        <source>Signal that fires the chosen trigger.</source>
        <translation>激发所选触发的信号。</translation>
    </message>
    <message>
        <source>TriggerActivation</source>
        <translation>触发极性</translation>
    </message>
    <message>
        <source>Trigger Activation</source>
        <translation>触发极性</translation>
    </message>
    <message>
        <source>Edge or level of the source that fires the trigger.</source>
        <translation>激发触发的信号边沿或电平。</translation>
    </message>
    <message>
        <source>TriggerOverlap</source>
        <translation>触发重叠</translation>
    </message>
    <message>
        <source>Trigger Overlap</source>
        <translation>触发重叠</translation>
    </message>
    <message>
        <source>Sets whether a trigger may arrive while the previous frame is still read out.</source>
        <translation>设置上一帧读出期间是否允许新的触发。</translation>
    </message>
    <message>
        <source>TriggerDelay</source>
        <translation>触发延迟</translation>
    </message>
    <message>
        <source>Trigger Delay</source>
        <translation>触发延迟</translation>
    </message>
    <message>
        <source>Delay between the trigger and its effect, in microseconds.</source>
        <translation>触发信号到生效之间的延迟，单位为微秒。</translation>
    </message>
    <message>
        <source>TriggerDivider</source>
        <translation>触发分频</translation>
    </message>
    <message>
        <source>Trigger Divider</source>
        <translation>触发分频</translation>
    </message>
    <message>
        <source>Keeps one trigger out of this many.</source>
        <translation>每收到多少个触发信号保留一个。</translation>
    </message>
    <message>
        <source>TriggerMultiplier</source>
        <translation>触发倍频</translation>
    </message>
    <message>
        <source>Trigger Multiplier</source>
        <translation>触发倍频</translation>
    </message>
    <message>
        <source>Number of triggers produced for each incoming trigger.</source>
        <translation>每个输入触发产生的触发数量。</translation>
    </message>
    <message>
        <source>TriggerFrameCount</source>
        <translation>触发帧数</translation>
    </message>
    <message>
        <source>Trigger Frame Count</source>
        <translation>触发帧数</translation>
    </message>
    <message>
        <source>Number of frames taken for each trigger.</source>
        <translation>每次触发采集的帧数。</translation>
    </message>
    <message>
        <source>TriggerCacheEnable</source>
        <translation>触发缓存使能</translation>
    </message>
    <message>
        <source>Trigger Cache Enable</source>
        <translation>触发缓存使能</translation>
    </message>
    <message>
        <source>Keeps triggers that arrive while the device is busy instead of dropping them.</source>
        <translation>设备忙时缓存到达的触发而不是丢弃。</translation>
    </message>
    <message>
        <source>ExposureMode</source>
        <translation>曝光模式</translation>
    </message>
    <message>
        <source>Exposure Mode</source>
        <translation>曝光模式</translation>
    </message>
    <message>
        <source>Sets how the exposure time is controlled.</source>
        <translation>设置曝光时间的控制方式。</translation>
    </message>
    <message>
        <source>ExposureTimeMode</source>
        <translation>曝光时间模式</translation>
    </message>
    <message>
        <source>Exposure Time Mode</source>
        <translation>曝光时间模式</translation>
    </message>
    <message>
        <source>Chooses the range of exposure times the sensor uses.</source>
        <translation>选择传感器使用的曝光时间范围。</translation>
    </message>
    <message>
        <source>ExposureTimeSelector</source>
        <translation>曝光时间选择器</translation>
    </message>
    <message>
        <source>Exposure Time Selector</source>
        <translation>曝光时间选择器</translation>
    </message>
    <message>
        <source>Chooses the exposure time the following features refer to.</source>
        <translation>选择后续特征所作用的曝光时间。</translation>
    </message>
    <message>
        <source>ExposureTime</source>
        <translation>曝光时间</translation>
    </message>
    <message>
        <source>Exposure Time</source>
        <translation>曝光时间</translation>
    </message>
    <message>
        <source>Exposure time of each frame, in microseconds.</source>
        <translation>每帧的曝光时间，单位为微秒。</translation>
    </message>
    <message>
        <source>ExposureTimeAbs</source>
        <translation>曝光时间(绝对值)</translation>
    </message>
    <message>
        <source>Exposure Time (Abs)</source>
        <translation>曝光时间(绝对值)</translation>
    </message>
    <message>
        <source>Exposure time as an absolute value, in microseconds.</source>
        <translation>以绝对值表示的曝光时间，单位为微秒。</translation>
    </message>
    <message>
        <source>ExposureAuto</source>
        <translation>自动曝光</translation>
    </message>
    <message>
        <source>Exposure Auto</source>
        <translation>自动曝光</translation>
    </message>
    <message>
        <source>Lets the device adjust the exposure time by itself.</source>
        <translation>由设备自动调整曝光时间。</translation>
    </message>
    <message>
        <source>AutoExposureTimeLowerLimit</source>
        <translation>自动曝光时间下限</translation>
    </message>
    <message>
        <source>Auto Exposure Time Lower Limit</source>
        <translation>自动曝光时间下限</translation>
    </message>
    <message>
        <source>Shortest exposure time automatic exposure may choose, in microseconds.</source>
        <translation>自动曝光可选的最短曝光时间，单位为微秒。</translation>
    </message>
    <message>
        <source>AutoExposureTimeUpperLimit</source>
        <translation>自动曝光时间上限</translation>
    </message>
    <message>
        <source>Auto Exposure Time Upper Limit</source>
        <translation>自动曝光时间上限</translation>
    </message>
    <message>
        <source>Longest exposure time automatic exposure may choose, in microseconds.</source>
        <translation>自动曝光可选的最长曝光时间，单位为微秒。</translation>
    </message>
    <message>
        <source>AutoTargetBrightness</source>
        <translation>自动目标亮度</translation>
    </message>
    <message>
        <source>Auto Target Brightness</source>
        <translation>自动目标亮度</translation>
    </message>
    <message>
        <source>Brightness that the automatic functions aim at.</source>
        <translation>自动功能所追求的目标亮度。</translation>
    </message>
    <message>
        <source>AutoFunctionAOISelector</source>
        <translation>自动功能区域选择器</translation>
    </message>
    <message>
        <source>Auto Function AOI Selector</source>
        <translation>自动功能区域选择器</translation>
    </message>
    <message>
        <source>Chooses the area used by the automatic functions.</source>
        <translation>选择自动功能所使用的区域。</translation>
    </message>
    <message>
        <source>AutoFunctionAOIWidth</source>
        <translation>自动功能区域宽度</translation>
    </message>
    <message>
        <source>Auto Function AOI Width</source>
        <translation>自动功能区域宽度</translation>
    </message>
    <message>
        <source>Width of the area used by the automatic functions.</source>
        <translation>自动功能所用区域的宽度。</translation>
    </message>
    <message>
        <source>AutoFunctionAOIHeight</source>
        <translation>自动功能区域高度</translation>
    </message>
    <message>
        <source>Auto Function AOI Height</source>
        <translation>自动功能区域高度</translation>
    </message>
    <message>
        <source>Height of the area used by the automatic functions.</source>
        <translation>自动功能所用区域的高度。</translation>
    </message>
    <message>
        <source>AutoFunctionAOIOffsetX</source>
        <translation>自动功能区域水平偏移</translation>
    </message>
    <message>
        <source>Auto Function AOI Offset X</source>
        <translation>自动功能区域水平偏移</translation>
    </message>
    <message>
        <source>Horizontal offset of the area used by the automatic functions.</source>
        <translation>自动功能所用区域的水平偏移。</translation>
    </message>
    <message>
        <source>AutoFunctionAOIOffsetY</source>
        <translation>自动功能区域垂直偏移</translation>
    </message>
    <message>
        <source>Auto Function AOI Offset Y</source>
        <translation>自动功能区域垂直偏移</translation>
    </message>
    <message>
        <source>Vertical offset of the area used by the automatic functions.</source>
        <translation>自动功能所用区域的垂直偏移。</translation>
    </message>
    <message>
        <source>MultiSlopeMode</source>
        <translation>多斜率模式</translation>
    </message>
    <message>
        <source>Multi Slope Mode</source>
        <translation>多斜率模式</translation>
    </message>
    <message>
        <source>Sets the multi-slope exposure used to widen the dynamic range.</source>
        <translation>设置用于扩展动态范围的多斜率曝光。</translation>
    </message>
    <message>
        <source>MultiSlopeKneePointCount</source>
        <translation>多斜率拐点数</translation>
    </message>
    <message>
        <source>Multi Slope Knee Point Count</source>
        <translation>多斜率拐点数</translation>
    </message>
    <message>
        <source>Number of knee points of the multi-slope response.</source>
        <translation>多斜率响应曲线的拐点数量。</translation>
    </message>
    <message>
        <source>MultiSlopeKneePointSelector</source>
        <translation>多斜率拐点选择器</translation>
    </message>
    <message>
        <source>Multi Slope Knee Point Selector</source>
        <translation>多斜率拐点选择器</translation>
    </message>
    <message>
        <source>Chooses the knee point the following features refer to.</source>
        <translation>选择后续特征所作用的拐点。</translation>
    </message>
    <message>
        <source>MultiSlopeExposureLimit</source>
        <translation>多斜率曝光极限</translation>
    </message>
    <message>
        <source>Multi Slope Exposure Limit</source>
        <translation>多斜率曝光极限</translation>
    </message>
    <message>
        <source>Exposure limit of the chosen knee point, in percent.</source>
        <translation>所选拐点的曝光极限，单位为百分比。</translation>
    </message>
    <message>
        <source>MultiSlopeSaturationThreshold</source>
        <translation>多斜率饱和阈值</translation>
    </message>
    <message>
        <source>Multi Slope Saturation Threshold</source>
        <translation>多斜率饱和阈值</translation>
    </message>
    <message>
        <source>Saturation threshold of the chosen knee point, in percent.</source>
        <translation>所选拐点的饱和阈值，单位为百分比。</translation>
    </message>
    <message>
        <source>AnalogControl</source>
        <translation>模拟控制</translation>
    </message>
    <message>
        <source>Analog Control</source>
        <translation>模拟控制</translation>
    </message>
    <message>
        <source>Category for gain, black level and other analog settings.</source>
        <translation>增益、黑电平等模拟设置相关的类别。</translation>
    </message>
    <message>
        <source>GainSelector</source>
        <translation>增益选择器</translation>
    </message>
    <message>
        <source>Gain Selector</source>
        <translation>增益选择器</translation>
    </message>
    <message>
        <source>Chooses the gain the following features refer to.</source>
        <translation>选择后续特征所作用的增益。</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>增益</translation>
    </message>
    <message>
        <source>Amplification of the chosen gain.</source>
        <translation>所选增益的放大倍数。</translation>
    </message>
    <message>
        <source>GainRaw</source>
        <translation>增益原始值</translation>
    </message>
    <message>
        <source>Gain Raw</source>
        <translation>增益原始值</translation>
    </message>
    <message>
        <source>Amplification of the chosen gain as a raw register value.</source>
        <translation>以原始寄存器值表示的增益。</translation>
    </message>
    <message>
        <source>GainAuto</source>
        <translation>自动增益</translation>
    </message>
    <message>
        <source>Gain Auto</source>
        <translation>自动增益</translation>
    </message>
    <message>
        <source>Lets the device adjust the gain by itself.</source>
        <translation>由设备自动调整增益。</translation>
    </message>
    <message>
        <source>GainAutoBalance</source>
        <translation>自动增益平衡</translation>
    </message>
    <message>
        <source>Gain Auto Balance</source>
        <translation>自动增益平衡</translation>
    </message>
    <message>
        <source>Lets the device balance the gains of the taps or colours by itself.</source>
        <translation>由设备自动平衡各抽头或各颜色的增益。</translation>
    </message>
    <message>
        <source>AutoGainLowerLimit</source>
        <translation>自动增益下限</translation>
    </message>
    <message>
        <source>Auto Gain Lower Limit</source>
        <translation>自动增益下限</translation>
    </message>
    <message>
        <source>Lowest gain automatic gain may choose.</source>
        <translation>自动增益可选的最小增益。</translation>
    </message>
    <message>
        <source>AutoGainUpperLimit</source>
        <translation>自动增益上限</translation>
    </message>
    <message>
        <source>Auto Gain Upper Limit</source>
        <translation>自动增益上限</translation>
    </message>
    <message>
        <source>Highest gain automatic gain may choose.</source>
        <translation>自动增益可选的最大增益。</translation>
    </message>
    <message>
        <source>BlackLevelSelector</source>
        <translation>黑电平选择器</translation>
    </message>
    <message>
        <source>Black Level Selector</source>
        <translation>黑电平选择器</translation>
    </message>
    <message>
        <source>Chooses the black level the following features refer to.</source>
        <translation>选择后续特征所作用的黑电平。</translation>
    </message>
    <message>
        <source>BlackLevel</source>
        <translation>黑电平</translation>
    </message>
    <message>
        <source>Black Level</source>
        <translation>黑电平</translation>
    </message>
    <message>
        <source>Offset added to every pixel of the chosen black level.</source>
        <translation>所选黑电平加到每个像素上的偏移量。</translation>
    </message>
    <message>
        <source>BlackLevelRaw</source>
        <translation>黑电平原始值</translation>
    </message>
    <message>
        <source>Black Level Raw</source>
        <translation>黑电平原始值</translation>
    </message>
    <message>
        <source>Black level as a raw register value.</source>
        <translation>以原始寄存器值表示的黑电平。</translation>
    </message>
    <message>
        <source>BlackLevelAuto</source>
        <translation>自动黑电平</translation>
    </message>
    <message>
        <source>Black Level Auto</source>
        <translation>自动黑电平</translation>
    </message>
    <message>
        <source>Lets the device adjust the black level by itself.</source>
        <translation>由设备自动调整黑电平。</translation>
    </message>
    <message>
        <source>BlackLevelAutoBalance</source>
        <translation>自动黑电平平衡</translation>
    </message>
    <message>
        <source>Black Level Auto Balance</source>
        <translation>自动黑电平平衡</translation>
    </message>
    <message>
        <source>Lets the device balance the black levels of the taps or colours by itself.</source>
        <translation>由设备自动平衡各抽头或各颜色的黑电平。</translation>
    </message>
    <message>
        <source>WhiteClipSelector</source>
        <translation>白电平削波选择器</translation>
    </message>
    <message>
        <source>White Clip Selector</source>
        <translation>白电平削波选择器</translation>
    </message>
    <message>
        <source>Chooses the white clip the following features refer to.</source>
        <translation>选择后续特征所作用的白电平削波。</translation>
    </message>
    <message>
        <source>WhiteClip</source>
        <translation>白电平削波</translation>
    </message>
    <message>
        <source>White Clip</source>
        <translation>白电平削波</translation>
    </message>
    <message>
        <source>Highest value a pixel may take before it is clipped.</source>
        <translation>像素被削波前可取的最大值。</translation>
    </message>
    <message>
        <source>BalanceRatioSelector</source>
        <translation>白平衡比例选择器</translation>
    </message>
    <message>
        <source>Balance Ratio Selector</source>
        <translation>白平衡比例选择器</translation>
    </message>
    <message>
        <source>Chooses the colour whose balance ratio is set.</source>
        <translation>选择要设置白平衡比例的颜色。</translation>
    </message>
    <message>
        <source>BalanceRatio</source>
        <translation>白平衡比例</translation>
    </message>
    <message>
        <source>Balance Ratio</source>
        <translation>白平衡比例</translation>
    </message>
    <message>
        <source>Ratio applied to the chosen colour for white balance.</source>
        <translation>白平衡时应用于所选颜色的比例。</translation>
    </message>
    <message>
        <source>BalanceWhiteAuto</source>
        <translation>自动白平衡</translation>
    </message>
    <message>
        <source>Balance White Auto</source>
        <translation>自动白平衡</translation>
    </message>
    <message>
        <source>Lets the device adjust the white balance by itself.</source>
        <translation>由设备自动调整白平衡。</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>伽马</translation>
    </message>
    <message>
        <source>Gamma correction applied to the pixel values.</source>
        <translation>应用于像素值的伽马校正。</translation>
    </message>
    <message>
        <source>GammaEnable</source>
        <translation>伽马使能</translation>
    </message>
    <message>
        <source>Gamma Enable</source>
        <translation>伽马使能</translation>
    </message>
    <message>
        <source>Turns gamma correction on or off.</source>
        <translation>开启或关闭伽马校正。</translation>
    </message>
    <message>
        <source>GammaSelector</source>
        <translation>伽马选择器</translation>
    </message>
    <message>
        <source>Gamma Selector</source>
        <translation>伽马选择器</translation>
    </message>
    <message>
        <source>Chooses the gamma curve applied to the image.</source>
        <translation>选择应用于图像的伽马曲线。</translation>
    </message>
    <message>
        <source>DigitalShift</source>
        <translation>数字移位</translation>
    </message>
    <message>
        <source>Digital Shift</source>
        <translation>数字移位</translation>
    </message>
    <message>
        <source>Shifts the pixel bits to brighten the image digitally.</source>
        <translation>通过移位像素数据对图像进行数字增亮。</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Overall brightness of the image.</source>
        <translation>图像的整体亮度。</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>锐度</translation>
    </message>
    <message>
        <source>Strength of the sharpening applied to the image.</source>
        <translation>应用于图像的锐化强度。</translation>
    </message>
    <message>
        <source>SharpnessEnable</source>
        <translation>锐度使能</translation>
    </message>
    <message>
        <source>Sharpness Enable</source>
        <translation>锐度使能</translation>
    </message>
    <message>
        <source>Turns image sharpening on or off.</source>
        <translation>开启或关闭图像锐化。</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>色调</translation>
    </message>
    <message>
        <source>Shift of all colours around the colour wheel, in degrees.</source>
        <translation>所有颜色在色轮上的偏移，单位为度。</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>饱和度</translation>
    </message>
    <message>
        <source>Strength of the colours of the image.</source>
        <translation>图像色彩的浓度。</translation>
    </message>
    <message>
        <source>SaturationEnable</source>
        <translation>饱和度使能</translation>
    </message>
    <message>
        <source>Saturation Enable</source>
        <translation>饱和度使能</translation>
    </message>
    <message>
        <source>Turns the saturation adjustment on or off.</source>
        <translation>开启或关闭饱和度调节。</translation>
    </message>
    <message>
        <source>LUTControl</source>
        <translation>查找表控制</translation>
    </message>
    <message>
        <source>LUT Control</source>
        <translation>查找表控制</translation>
    </message>
    <message>
        <source>Category for the lookup table applied to the pixels.</source>
        <translation>应用于像素的查找表相关的类别。</translation>
    </message>
    <message>
        <source>LUTSelector</source>
        <translation>查找表选择器</translation>
    </message>
    <message>
        <source>LUT Selector</source>
        <translation>查找表选择器</translation>
    </message>
    <message>
        <source>Chooses the lookup table the following features refer to.</source>
        <translation>选择后续特征所作用的查找表。</translation>
    </message>
    <message>
        <source>LUTEnable</source>
        <translation>查找表使能</translation>
    </message>
    <message>
        <source>LUT Enable</source>
        <translation>查找表使能</translation>
    </message>
    <message>
        <source>Turns the chosen lookup table on or off.</source>
        <translation>开启或关闭所选查找表。</translation>
    </message>
    <message>
        <source>LUTIndex</source>
        <translation>查找表索引</translation>
    </message>
    <message>
        <source>LUT Index</source>
        <translation>查找表索引</translation>
    </message>
    <message>
        <source>Entry of the lookup table that is read or written.</source>
        <translation>要读写的查找表条目。</translation>
    </message>
    <message>
        <source>LUTValue</source>
        <translation>查找表值</translation>
    </message>
    <message>
        <source>LUT Value</source>
        <translation>查找表值</translation>
    </message>
    <message>
        <source>Value stored at the chosen entry of the lookup table.</source>
        <translation>查找表所选条目中保存的值。</translation>
    </message>
    <message>
        <source>LUTValueAll</source>
        <translation>查找表全部值</translation>
    </message>
    <message>
        <source>LUT Value All</source>
        <translation>查找表全部值</translation>
    </message>
    <message>
        <source>Every entry of the chosen lookup table at once.</source>
        <translation>所选查找表的全部条目。</translation>
    </message>
    <message>
        <source>ColorTransformationControl</source>
        <translation>颜色转换控制</translation>
    </message>
    <message>
        <source>Color Transformation Control</source>
        <translation>颜色转换控制</translation>
    </message>
    <message>
        <source>Category for the colour transformation of the image.</source>
        <translation>图像颜色转换相关的类别。</translation>
    </message>
    <message>
        <source>ColorTransformationSelector</source>
        <translation>颜色转换选择器</translation>
    </message>
    <message>
        <source>Color Transformation Selector</source>
        <translation>颜色转换选择器</translation>
    </message>
    <message>
        <source>Chooses the colour transformation the following features refer to.</source>
        <translation>选择后续特征所作用的颜色转换。</translation>
    </message>
    <message>
        <source>ColorTransformationEnable</source>
        <translation>颜色转换使能</translation>
    </message>
    <message>
        <source>Color Transformation Enable</source>
        <translation>颜色转换使能</translation>
    </message>
    <message>
        <source>Turns the chosen colour transformation on or off.</source>
        <translation>开启或关闭所选颜色转换。</translation>
    </message>
    <message>
        <source>ColorTransformationValueSelector</source>
        <translation>颜色转换系数选择器</translation>
    </message>
    <message>
        <source>Color Transformation Value Selector</source>
        <translation>颜色转换系数选择器</translation>
    </message>
    <message>
        <source>Chooses the coefficient of the transformation matrix.</source>
        <translation>选择转换矩阵中的系数。</translation>
    </message>
    <message>
        <source>ColorTransformationValue</source>
        <translation>颜色转换系数</translation>
    </message>
    <message>
        <source>Color Transformation Value</source>
        <translation>颜色转换系数</translation>
    </message>
    <message>
        <source>Value of the chosen coefficient of the transformation matrix.</source>
        <translation>转换矩阵中所选系数的值。</translation>
    </message>
    <message>
        <source>DigitalIOControl</source>
        <translation>数字IO控制</translation>
    </message>
    <message>
        <source>Digital IO Control</source>
        <translation>数字IO控制</translation>
    </message>
    <message>
        <source>Category for the input and output lines of the device.</source>
        <translation>设备输入输出线路相关的类别。</translation>
    </message>
    <message>
        <source>LineSelector</source>
        <translation>线路选择器</translation>
    </message>
    <message>
        <source>Line Selector</source>
        <translation>线路选择器</translation>
    </message>
    <message>
        <source>Chooses the physical line the following features refer to.</source>
        <translation>选择后续特征所作用的物理线路。</translation>
    </message>
    <message>
        <source>LineMode</source>
        <translation>线路模式</translation>
    </message>
    <message>
        <source>Line Mode</source>
        <translation>线路模式</translation>
    </message>
    <message>
        <source>Sets whether the chosen line is an input or an output.</source>
        <translation>设置所选线路为输入还是输出。</translation>
    </message>
    <message>
        <source>LineInverter</source>
        <translation>线路反相</translation>
    </message>
    <message>
        <source>Line Inverter</source>
        <translation>线路反相</translation>
    </message>
    <message>
        <source>Inverts the signal of the chosen line.</source>
        <translation>将所选线路的信号反相。</translation>
    </message>
    <message>
        <source>LineStatus</source>
        <translation>线路状态</translation>
    </message>
    <message>
        <source>Line Status</source>
        <translation>线路状态</translation>
    </message>
    <message>
        <source>Current level of the chosen line.</source>
        <translation>所选线路的当前电平。</translation>
    </message>
    <message>
        <source>LineStatusAll</source>
        <translation>全部线路状态</translation>
    </message>
    <message>
        <source>Line Status All</source>
        <translation>全部线路状态</translation>
    </message>
    <message>
        <source>Current levels of all lines, one bit per line.</source>
        <translation>所有线路的当前电平，每条线路一位。</translation>
    </message>
    <message>
        <source>LineSource</source>
        <translation>线路输出源</translation>
    </message>
    <message>
        <source>Line Source</source>
        <translation>线路输出源</translation>
    </message>
    <message>
        <source>Internal signal sent out on the chosen output line.</source>
        <translation>在所选输出线路上输出的内部信号。</translation>
    </message>
    <message>
        <source>LineFormat</source>
        <translation>线路电气格式</translation>
    </message>
    <message>
        <source>Line Format</source>
        <translation>线路电气格式</translation>
    </message>
    <message>
        <source>Electrical format of the chosen line.</source>
        <translation>所选线路的电气格式。</translation>
    </message>
    <message>
        <source>LineDebouncerTime</source>
        <translation>线路去抖时间</translation>
    </message>
    <message>
        <source>Line Debouncer Time</source>
        <translation>线路去抖时间</translation>
    </message>
    <message>
        <source>Shortest pulse the chosen input accepts, in microseconds.</source>
        <translation>所选输入接受的最短脉冲，单位为微秒。</translation>
    </message>
    <message>
        <source>LineFilterTime</source>
        <translation>线路滤波时间</translation>
    </message>
    <message>
        <source>Line Filter Time</source>
        <translation>线路滤波时间</translation>
    </message>
    <message>
        <source>Length of the glitch filter of the chosen input, in microseconds.</source>
        <translation>所选输入的毛刺滤波时长，单位为微秒。</translation>
    </message>
    <message>
        <source>UserOutputSelector</source>
        <translation>用户输出选择器</translation>
    </message>
    <message>
        <source>User Output Selector</source>
        <translation>用户输出选择器</translation>
    </message>
    <message>
        <source>Chooses the user output the following features refer to.</source>
        <translation>选择后续特征所作用的用户输出。</translation>
    </message>
    <message>
        <source>UserOutputValue</source>
        <translation>用户输出值</translation>
    </message>
    <message>
        <source>User Output Value</source>
        <translation>用户输出值</translation>
    </message>
    <message>
        <source>Level of the chosen user output.</source>
        <translation>所选用户输出的电平。</translation>
    </message>
    <message>
        <source>UserOutputValueAll</source>
        <translation>全部用户输出值</translation>
    </message>
    <message>
        <source>User Output Value All</source>
        <translation>全部用户输出值</translation>
    </message>
    <message>
        <source>Levels of all user outputs, one bit per output.</source>
        <translation>所有用户输出的电平，每个输出一位。</translation>
    </message>
    <message>
        <source>UserOutputValueAllMask</source>
        <translation>用户输出掩码</translation>
    </message>
    <message>
        <source>User Output Value All Mask</source>
        <translation>用户输出掩码</translation>
    </message>
    <message>
        <source>Mask of the user outputs that a write of all values changes.</source>
        <translation>写入全部用户输出值时实际修改的输出掩码。</translation>
    </message>
    <message>
        <source>StrobeEnable</source>
        <translation>闪光灯输出使能</translation>
    </message>
    <message>
        <source>Strobe Enable</source>
        <translation>闪光灯输出使能</translation>
    </message>
    <message>
        <source>Turns the strobe output on or off.</source>
        <translation>开启或关闭闪光灯输出。</translation>
    </message>
    <message>
        <source>StrobeDelay</source>
        <translation>闪光灯延迟</translation>
    </message>
    <message>
        <source>Strobe Delay</source>
        <translation>闪光灯延迟</translation>
    </message>
    <message>
        <source>Delay between the start of exposure and the strobe, in microseconds.</source>
        <translation>曝光开始到闪光灯输出之间的延迟，单位为微秒。</translation>
    </message>
    <message>
        <source>StrobeDuration</source>
        <translation>闪光灯脉宽</translation>
    </message>
    <message>
        <source>Strobe Duration</source>
        <translation>闪光灯脉宽</translation>
    </message>
    <message>
        <source>Length of the strobe pulse, in microseconds.</source>
        <translation>闪光灯脉冲的持续时间，单位为微秒。</translation>
    </message>
    <message>
        <source>CounterAndTimerControl</source>
        <translation>计数器和定时器控制</translation>
    </message>
    <message>
        <source>Counter And Timer Control</source>
        <translation>计数器和定时器控制</translation>
    </message>
    <message>
        <source>Category for the counters and timers of the device.</source>
        <translation>设备计数器与定时器相关的类别。</translation>
    </message>
    <message>
        <source>CounterSelector</source>
        <translation>计数器选择器</translation>
    </message>
    <message>
        <source>Counter Selector</source>
        <translation>计数器选择器</translation>
    </message>
    <message>
        <source>Chooses the counter the following features refer to.</source>
        <translation>选择后续特征所作用的计数器。</translation>
    </message>
    <message>
        <source>CounterEventSource</source>
        <translation>计数器事件源</translation>
    </message>
    <message>
        <source>Counter Event Source</source>
        <translation>计数器事件源</translation>
    </message>
    <message>
        <source>Signal whose events the chosen counter counts.</source>
        <translation>所选计数器计数的信号。</translation>
    </message>
    <message>
        <source>CounterEventActivation</source>
        <translation>计数器事件极性</translation>
    </message>
    <message>
        <source>Counter Event Activation</source>
        <translation>计数器事件极性</translation>
    </message>
    <message>
        <source>Edge of the event source that is counted.</source>
        <translation>被计数的事件源信号边沿。</translation>
    </message>
    <message>
        <source>CounterResetSource</source>
        <translation>计数器复位源</translation>
    </message>
    <message>
        <source>Counter Reset Source</source>
        <translation>计数器复位源</translation>
    </message>
    <message>
        <source>Signal that resets the chosen counter.</source>
        <translation>复位所选计数器的信号。</translation>
    </message>
    <message>
        <source>CounterResetActivation</source>
        <translation>计数器复位极性</translation>
    </message>
    <message>
        <source>Counter Reset Activation</source>
        <translation>计数器复位极性</translation>
    </message>
    <message>
        <source>Edge or level of the reset source that resets the counter.</source>
        <translation>复位计数器的复位源信号边沿或电平。</translation>
    </message>
    <message>
        <source>CounterReset</source>
        <translation>计数器复位</translation>
    </message>
    <message>
        <source>Counter Reset</source>
        <translation>计数器复位</translation>
    </message>
    <message>
        <source>Resets the chosen counter at once.</source>
        <translation>立即复位所选计数器。</translation>
    </message>
    <message>
        <source>CounterValue</source>
        <translation>计数器值</translation>
    </message>
    <message>
        <source>Counter Value</source>
        <translation>计数器值</translation>
    </message>
    <message>
        <source>Current value of the chosen counter.</source>
        <translation>所选计数器的当前值。</translation>
    </message>
    <message>
        <source>CounterValueAtReset</source>
        <translation>复位时计数值</translation>
    </message>
    <message>
        <source>Counter Value At Reset</source>
        <translation>复位时计数值</translation>
    </message>
    <message>
        <source>Value the chosen counter had at its last reset.</source>
        <translation>所选计数器最近一次复位时的值。</translation>
    </message>
    <message>
        <source>CounterDuration</source>
        <translation>计数器持续数</translation>
    </message>
    <message>
        <source>Counter Duration</source>
        <translation>计数器持续数</translation>
    </message>
    <message>
        <source>Number of events after which the chosen counter ends.</source>
        <translation>所选计数器结束前需计数的事件数。</translation>
    </message>
    <message>
        <source>CounterStatus</source>
        <translation>计数器状态</translation>
    </message>
    <message>
        <source>Counter Status</source>
        <translation>计数器状态</translation>
    </message>
    <message>
        <source>Current state of the chosen counter.</source>
        <translation>所选计数器的当前状态。</translation>
    </message>
    <message>
        <source>CounterTriggerSource</source>
        <translation>计数器触发源</translation>
    </message>
    <message>
        <source>Counter Trigger Source</source>
        <translation>计数器触发源</translation>
    </message>
    <message>
        <source>Signal that starts the chosen counter.</source>
        <translation>启动所选计数器的信号。</translation>
    </message>
    <message>
        <source>CounterTriggerActivation</source>
        <translation>计数器触发极性</translation>
    </message>
    <message>
        <source>Counter Trigger Activation</source>
        <translation>计数器触发极性</translation>
    </message>
    <message>
        <source>Edge or level of the trigger source that starts the counter.</source>
        <translation>启动计数器的触发源信号边沿或电平。</translation>
    </message>
    <message>
        <source>TimerSelector</source>
        <translation>定时器选择器</translation>
    </message>
    <message>
        <source>Timer Selector</source>
        <translation>定时器选择器</translation>
    </message>
    <message>
        <source>Chooses the timer the following features refer to.</source>
        <translation>选择后续特征所作用的定时器。</translation>
    </message>
    <message>
        <source>TimerDuration</source>
        <translation>定时器持续时间</translation>
    </message>
    <message>
        <source>Timer Duration</source>
        <translation>定时器持续时间</translation>
    </message>
    <message>
        <source>Length of the pulse of the chosen timer, in microseconds.</source>
        <translation>所选定时器脉冲的持续时间，单位为微秒。</translation>
    </message>
    <message>
        <source>TimerDelay</source>
        <translation>定时器延迟</translation>
    </message>
    <message>
        <source>Timer Delay</source>
        <translation>定时器延迟</translation>
    </message>
    <message>
        <source>Delay before the chosen timer starts its pulse, in microseconds.</source>
        <translation>所选定时器开始输出脉冲前的延迟，单位为微秒。</translation>
    </message>
    <message>
        <source>TimerReset</source>
        <translation>定时器复位</translation>
    </message>
    <message>
        <source>Timer Reset</source>
        <translation>定时器复位</translation>
    </message>
    <message>
        <source>Resets the chosen timer at once.</source>
        <translation>立即复位所选定时器。</translation>
    </message>
    <message>
        <source>TimerValue</source>
        <translation>定时器值</translation>
    </message>
    <message>
        <source>Timer Value</source>
        <translation>定时器值</translation>
    </message>
    <message>
        <source>Current value of the chosen timer, in microseconds.</source>
        <translation>所选定时器的当前值，单位为微秒。</translation>
    </message>
    <message>
        <source>TimerStatus</source>
        <translation>定时器状态</translation>
    </message>
    <message>
        <source>Timer Status</source>
        <translation>定时器状态</translation>
    </message>
    <message>
        <source>Current state of the chosen timer.</source>
        <translation>所选定时器的当前状态。</translation>
    </message>
    <message>
        <source>TimerTriggerSource</source>
        <translation>定时器触发源</translation>
    </message>
    <message>
        <source>Timer Trigger Source</source>
        <translation>定时器触发源</translation>
    </message>
    <message>
        <source>Signal that starts the chosen timer.</source>
        <translation>启动所选定时器的信号。</translation>
    </message>
    <message>
        <source>TimerTriggerActivation</source>
        <translation>定时器触发极性</translation>
    </message>
    <message>
        <source>Timer Trigger Activation</source>
        <translation>定时器触发极性</translation>
    </message>
    <message>
        <source>Edge or level of the trigger source that starts the timer.</source>
        <translation>启动定时器的触发源信号边沿或电平。</translation>
    </message>
    <message>
        <source>EncoderControl</source>
        <translation>编码器控制</translation>
    </message>
    <message>
        <source>Encoder Control</source>
        <translation>编码器控制</translation>
    </message>
    <message>
        <source>Category for the quadrature encoder inputs.</source>
        <translation>正交编码器输入相关的类别。</translation>
    </message>
    <message>
        <source>EncoderSelector</source>
        <translation>编码器选择器</translation>
    </message>
    <message>
        <source>Encoder Selector</source>
        <translation>编码器选择器</translation>
    </message>
    <message>
        <source>Chooses the encoder the following features refer to.</source>
        <translation>选择后续特征所作用的编码器。</translation>
    </message>
    <message>
        <source>EncoderSourceA</source>
        <translation>编码器A相源</translation>
    </message>
    <message>
        <source>Encoder Source A</source>
        <translation>编码器A相源</translation>
    </message>
    <message>
        <source>Line connected to the A phase of the encoder.</source>
        <translation>连接编码器A相的线路。</translation>
    </message>
    <message>
        <source>EncoderSourceB</source>
        <translation>编码器B相源</translation>
    </message>
    <message>
        <source>Encoder Source B</source>
        <translation>编码器B相源</translation>
    </message>
    <message>
        <source>Line connected to the B phase of the encoder.</source>
        <translation>连接编码器B相的线路。</translation>
    </message>
    <message>
        <source>EncoderMode</source>
        <translation>编码器模式</translation>
    </message>
    <message>
        <source>Encoder Mode</source>
        <translation>编码器模式</translation>
    </message>
    <message>
        <source>Sets how the encoder counts the phase changes.</source>
        <translation>设置编码器对相位变化的计数方式。</translation>
    </message>
    <message>
        <source>EncoderDivider</source>
        <translation>编码器分频</translation>
    </message>
    <message>
        <source>Encoder Divider</source>
        <translation>编码器分频</translation>
    </message>
    <message>
        <source>Number of encoder ticks for each output pulse.</source>
        <translation>每个输出脉冲对应的编码器计数。</translation>
    </message>
    <message>
        <source>EncoderOutputMode</source>
        <translation>编码器输出模式</translation>
    </message>
    <message>
        <source>Encoder Output Mode</source>
        <translation>编码器输出模式</translation>
    </message>
    <message>
        <source>Direction of motion that produces output pulses.</source>
        <translation>产生输出脉冲的运动方向。</translation>
    </message>
    <message>
        <source>EncoderStatus</source>
        <translation>编码器状态</translation>
    </message>
    <message>
        <source>Encoder Status</source>
        <translation>编码器状态</translation>
    </message>
    <message>
        <source>Current direction of motion seen by the encoder.</source>
        <translation>编码器检测到的当前运动方向。</translation>
    </message>
    <message>
        <source>EncoderTimeout</source>
        <translation>编码器超时</translation>
    </message>
    <message>
        <source>Encoder Timeout</source>
        <translation>编码器超时</translation>
    </message>
    <message>
        <source>Time without movement after which the encoder counts as stopped, in microseconds.</source>
        <translation>编码器无运动多久后视为停止，单位为微秒。</translation>
    </message>
    <message>
        <source>EncoderResetSource</source>
        <translation>编码器复位源</translation>
    </message>
    <message>
        <source>Encoder Reset Source</source>
        <translation>编码器复位源</translation>
    </message>
    <message>
        <source>Signal that resets the encoder position.</source>
        <translation>复位编码器位置的信号。</translation>
    </message>
    <message>
        <source>EncoderResetActivation</source>
        <translation>编码器复位极性</translation>
    </message>
    <message>
        <source>Encoder Reset Activation</source>
        <translation>编码器复位极性</translation>
    </message>
    <message>
        <source>Edge or level of the reset source that resets the encoder.</source>
        <translation>复位编码器的复位源信号边沿或电平。</translation>
    </message>
    <message>
        <source>EncoderReset</source>
        <translation>编码器复位</translation>
    </message>
    <message>
        <source>Encoder Reset</source>
        <translation>编码器复位</translation>
    </message>
    <message>
        <source>Resets the encoder position at once.</source>
        <translation>立即复位编码器位置。</translation>
    </message>
    <message>
        <source>EncoderValue</source>
        <translation>编码器值</translation>
    </message>
    <message>
        <source>Encoder Value</source>
        <translation>编码器值</translation>
    </message>
    <message>
        <source>Current position counted by the encoder.</source>
        <translation>编码器计数的当前位置。</translation>
    </message>
    <message>
        <source>EncoderValueAtReset</source>
        <translation>复位时编码器值</translation>
    </message>
    <message>
        <source>Encoder Value At Reset</source>
        <translation>复位时编码器值</translation>
    </message>
    <message>
        <source>Position the encoder had at its last reset.</source>
        <translation>编码器最近一次复位时的位置。</translation>
    </message>
    <message>
        <source>SoftwareSignalControl</source>
        <translation>软件信号控制</translation>
    </message>
    <message>
        <source>Software Signal Control</source>
        <translation>软件信号控制</translation>
    </message>
    <message>
        <source>Category for the signals that software can raise.</source>
        <translation>可由软件产生的信号相关的类别。</translation>
    </message>
    <message>
        <source>SoftwareSignalSelector</source>
        <translation>软件信号选择器</translation>
    </message>
    <message>
        <source>Software Signal Selector</source>
        <translation>软件信号选择器</translation>
    </message>
    <message>
        <source>Chooses the software signal the following features refer to.</source>
        <translation>选择后续特征所作用的软件信号。</translation>
    </message>
    <message>
        <source>SoftwareSignalPulse</source>
        <translation>软件信号脉冲</translation>
    </message>
    <message>
        <source>Software Signal Pulse</source>
        <translation>软件信号脉冲</translation>
    </message>
    <message>
        <source>Raises a pulse on the chosen software signal.</source>
        <translation>在所选软件信号上产生一个脉冲。</translation>
    </message>
    <message>
        <source>ActionControl</source>
        <translation>动作命令控制</translation>
    </message>
    <message>
        <source>Action Control</source>
        <translation>动作命令控制</translation>
    </message>
    <message>
        <source>Category for the action commands sent to several devices at once.</source>
        <translation>同时发送给多台设备的动作命令相关的类别。</translation>
    </message>
    <message>
        <source>ActionUnconditionalMode</source>
        <translation>无条件动作模式</translation>
    </message>
    <message>
        <source>Action Unconditional Mode</source>
        <translation>无条件动作模式</translation>
    </message>
    <message>
        <source>Lets action commands act even while the device is not in use by an application.</source>
        <translation>设备未被应用程序使用时也执行动作命令。</translation>
    </message>
    <message>
        <source>ActionDeviceKey</source>
        <translation>动作设备密钥</translation>
    </message>
    <message>
        <source>Action Device Key</source>
        <translation>动作设备密钥</translation>
    </message>
    <message>
        <source>Key a received action command must carry to be accepted.</source>
        <translation>接收的动作命令必须携带的密钥。</translation>
    </message>
    <message>
        <source>ActionQueueSize</source>
        <translation>动作队列大小</translation>
    </message>
    <message>
        <source>Action Queue Size</source>
        <translation>动作队列大小</translation>
    </message>
    <message>
        <source>Number of scheduled action commands the device can hold.</source>
        <translation>设备可保存的定时动作命令数量。</translation>
    </message>
    <message>
        <source>ActionSelector</source>
        <translation>动作选择器</translation>
    </message>
    <message>
        <source>Action Selector</source>
        <translation>动作选择器</translation>
    </message>
    <message>
        <source>Chooses the action the following features refer to.</source>
        <translation>选择后续特征所作用的动作。</translation>
    </message>
    <message>
        <source>ActionGroupMask</source>
        <translation>动作组掩码</translation>
    </message>
    <message>
        <source>Action Group Mask</source>
        <translation>动作组掩码</translation>
    </message>
    <message>
        <source>Mask that an action command must match to trigger the chosen action.</source>
        <translation>触发所选动作时动作命令须匹配的掩码。</translation>
    </message>
    <message>
        <source>ActionGroupKey</source>
        <translation>动作组密钥</translation>
    </message>
    <message>
        <source>Action Group Key</source>
        <translation>动作组密钥</translation>
    </message>
    <message>
        <source>Group key that an action command must carry to trigger the chosen action.</source>
        <translation>触发所选动作时动作命令须携带的组密钥。</translation>
    </message>
    <message>
        <source>EventControl</source>
        <translation>事件控制</translation>
    </message>
    <message>
        <source>Event Control</source>
        <translation>事件控制</translation>
    </message>
    <message>
        <source>Category for the events the device sends to the host.</source>
        <translation>设备发送给主机的事件相关的类别。</translation>
    </message>
    <message>
        <source>EventSelector</source>
        <translation>事件选择器</translation>
    </message>
    <message>
        <source>Event Selector</source>
        <translation>事件选择器</translation>
    </message>
    <message>
        <source>Chooses the event the following features refer to.</source>
        <translation>选择后续特征所作用的事件。</translation>
    </message>
    <message>
        <source>EventNotification</source>
        <translation>事件通知</translation>
    </message>
    <message>
        <source>Event Notification</source>
        <translation>事件通知</translation>
    </message>
    <message>
        <source>Turns the sending of the chosen event on or off.</source>
        <translation>开启或关闭所选事件的发送。</translation>
    </message>
    <message>
        <source>EventAcquisitionTriggerData</source>
        <translation>采集触发事件数据</translation>
    </message>
    <message>
        <source>Event Acquisition Trigger Data</source>
        <translation>采集触发事件数据</translation>
    </message>
    <message>
        <source>Category for the data sent with the Acquisition Trigger event.</source>
        <translation>采集触发事件所附数据的类别。</translation>
    </message>
    <message>
        <source>EventAcquisitionTrigger</source>
        <translation>采集触发事件</translation>
    </message>
    <message>
        <source>Event Acquisition Trigger</source>
        <translation>采集触发事件</translation>
    </message>
    <message>
        <source>Identifier of the Acquisition Trigger event.</source>
        <translation>采集触发事件的标识。</translation>
    </message>
    <message>
        <source>EventAcquisitionTriggerTimestamp</source>
        <translation>采集触发事件时间戳</translation>
    </message>
    <message>
        <source>Event Acquisition Trigger Timestamp</source>
        <translation>采集触发事件时间戳</translation>
    </message>
    <message>
        <source>Time at which the Acquisition Trigger event occurred.</source>
        <translation>采集触发事件发生的时间。</translation>
    </message>
    <message>
        <source>EventAcquisitionTriggerFrameID</source>
        <translation>采集触发事件帧号</translation>
    </message>
    <message>
        <source>Event Acquisition Trigger Frame ID</source>
        <translation>采集触发事件帧号</translation>
    </message>
    <message>
        <source>Frame that the Acquisition Trigger event belongs to.</source>
        <translation>采集触发事件所属的帧。</translation>
    </message>
    <message>
        <source>EventAcquisitionStartData</source>
        <translation>开始采集事件数据</translation>
    </message>
    <message>
        <source>Event Acquisition Start Data</source>
        <translation>开始采集事件数据</translation>
    </message>
    <message>
        <source>Category for the data sent with the Acquisition Start event.</source>
        <translation>开始采集事件所附数据的类别。</translation>
    </message>
    <message>
        <source>EventAcquisitionStart</source>
        <translation>开始采集事件</translation>
    </message>
    <message>
        <source>Event Acquisition Start</source>
        <translation>开始采集事件</translation>
    </message>
    <message>
        <source>Identifier of the Acquisition Start event.</source>
        <translation>开始采集事件的标识。</translation>
    </message>
    <message>
        <source>EventAcquisitionStartTimestamp</source>
        <translation>开始采集事件时间戳</translation>
    </message>
    <message>
        <source>Event Acquisition Start Timestamp</source>
        <translation>开始采集事件时间戳</translation>
    </message>
    <message>
        <source>Time at which the Acquisition Start event occurred.</source>
        <translation>开始采集事件发生的时间。</translation>
    </message>
    <message>
        <source>EventAcquisitionStartFrameID</source>
        <translation>开始采集事件帧号</translation>
    </message>
    <message>
        <source>Event Acquisition Start Frame ID</source>
        <translation>开始采集事件帧号</translation>
    </message>
    <message>
        <source>Frame that the Acquisition Start event belongs to.</source>
        <translation>开始采集事件所属的帧。</translation>
    </message>
    <message>
        <source>EventAcquisitionEndData</source>
        <translation>采集结束事件数据</translation>
    </message>
    <message>
        <source>Event Acquisition End Data</source>
        <translation>采集结束事件数据</translation>
    </message>
    <message>
        <source>Category for the data sent with the Acquisition End event.</source>
        <translation>采集结束事件所附数据的类别。</translation>
    </message>
    <message>
        <source>EventAcquisitionEnd</source>
        <translation>采集结束事件</translation>
    </message>
    <message>
        <source>Event Acquisition End</source>
        <translation>采集结束事件</translation>
    </message>
    <message>
        <source>Identifier of the Acquisition End event.</source>
        <translation>采集结束事件的标识。</translation>
    </message>
    <message>
        <source>EventAcquisitionEndTimestamp</source>
        <translation>采集结束事件时间戳</translation>
    </message>
    <message>
        <source>Event Acquisition End Timestamp</source>
        <translation>采集结束事件时间戳</translation>
    </message>
    <message>
        <source>Time at which the Acquisition End event occurred.</source>
        <translation>采集结束事件发生的时间。</translation>
    </message>
    <message>
        <source>EventAcquisitionEndFrameID</source>
        <translation>采集结束事件帧号</translation>
    </message>
    <message>
        <source>Event Acquisition End Frame ID</source>
        <translation>采集结束事件帧号</translation>
    </message>
    <message>
        <source>Frame that the Acquisition End event belongs to.</source>
        <translation>采集结束事件所属的帧。</translation>
    </message>
    <message>
        <source>EventAcquisitionTransferStartData</source>
        <translation>采集传输开始事件数据</translation>
    </message>
    <message>
        <source>Event Acquisition Transfer Start Data</source>
        <translation>采集传输开始事件数据</translation>
    </message>
    <message>
        <source>Category for the data sent with the Acquisition Transfer Start event.</source>
        <translation>采集传输开始事件所附数据的类别。</translation>
    </message>
    <message>
        <source>EventAcquisitionTransferStart</source>
        <translation>采集传输开始事件</translation>
    </message>
    <message>
        <source>Event Acquisition Transfer Start</source>
        <translation>采集传输开始事件</translation>
    </message>
    <message>
        <source>Identifier of the Acquisition Transfer Start event.</source>
        <translation>采集传输开始事件的标识。</translation>
    </message>
    <message>
        <source>EventAcquisitionTransferStartTimestamp</source>
        <translation>采集传输开始事件时间戳</translation>
    </message>
    <message>
        <source>Event Acquisition Transfer Start Timestamp</source>
        <translation>采集传输开始事件时间戳</translation>
    </message>
    <message>
        <source>Time at which the Acquisition Transfer Start event occurred.</source>
        <translation>采集传输开始事件发生的时间。</translation>
    </message>
    <message>
        <source>EventAcquisitionTransferStartFrameID</source>
        <translation>采集传输开始事件帧号</translation>
    </message>
    <message>
        <source>Event Acquisition Transfer Start Frame ID</source>
        <translation>采集传输开始事件帧号</translation>
    </message>
    <message>
        <source>Frame that the Acquisition Transfer Start event belongs to.</source>
        <translation>采集传输开始事件所属的帧。</translation>
    </message>
    <message>
        <source>EventAcquisitionTransferEndData</source>
        <translation>采集传输结束事件数据</translation>
    </message>
    <message>
        <source>Event Acquisition Transfer End Data</source>
        <translation>采集传输结束事件数据</translation>
    </message>
    <message>
        <source>Category for the data sent with the Acquisition Transfer End event.</source>
        <translation>采集传输结束事件所附数据的类别。</translation>
    </message>
    <message>
        <source>EventAcquisitionTransferEnd</source>
        <translation>采集传输结束事件</translation>
    </message>
    <message>
        <source>Event Acquisition Transfer End</source>
        <translation>采集传输结束事件</translation>
    </message>
    <message>
        <source>Identifier of the Acquisition Transfer End event.</source>
        <translation>采集传输结束事件的标识。</translation>
    </message>
    <message>
        <source>EventAcquisitionTransferEndTimestamp</source>
        <translation>采集传输结束事件时间戳</translation>
    </message>
    <message>
        <source>Event Acquisition Transfer End Timestamp</source>
        <translation>采集传输结束事件时间戳</translation>
    </message>
    <message>
        <source>Time at which the Acquisition Transfer End event occurred.</source>
        <translation>采集传输结束事件发生的时间。</translation>
    </message>
    <message>
        <source>EventAcquisitionTransferEndFrameID</source>
        <translation>采集传输结束事件帧号</translation>
    </message>
    <message>
        <source>Event Acquisition Transfer End Frame ID</source>
        <translation>采集传输结束事件帧号</translation>
    </message>
    <message>
        <source>Frame that the Acquisition Transfer End event belongs to.</source>
        <translation>采集传输结束事件所属的帧。</translation>
    </message>
    <message>
        <source>EventAcquisitionErrorData</source>
        <translation>采集错误事件数据</translation>
    </message>
    <message>
        <source>Event Acquisition Error Data</source>
        <translation>采集错误事件数据</translation>
    </message>
    <message>
        <source>Category for the data sent with the Acquisition Error event.</source>
        <translation>采集错误事件所附数据的类别。</translation>
    </message>
    <message>
        <source>EventAcquisitionError</source>
        <translation>采集错误事件</translation>
    </message>
    <message>
        <source>Event Acquisition Error</source>
        <translation>采集错误事件</translation>
    </message>
    <message>
        <source>Identifier of the Acquisition Error event.</source>
        <translation>采集错误事件的标识。</translation>
    </message>
    <message>
        <source>EventAcquisitionErrorTimestamp</source>
        <translation>采集错误事件时间戳</translation>
    </message>
    <message>
        <source>Event Acquisition Error Timestamp</source>
        <translation>采集错误事件时间戳</translation>
    </message>
    <message>
        <source>Time at which the Acquisition Error event occurred.</source>
        <translation>采集错误事件发生的时间。</translation>
    </message>
    <message>
        <source>EventAcquisitionErrorFrameID</source>
        <translation>采集错误事件帧号</translation>
    </message>
    <message>
        <source>Event Acquisition Error Frame ID</source>
        <translation>采集错误事件帧号</translation>
    </message>
    <message>
        <source>Frame that the Acquisition Error event belongs to.</source>
        <translation>采集错误事件所属的帧。</translation>
    </message>
    <message>
        <source>EventFrameTriggerData</source>
        <translation>帧触发事件数据</translation>
    </message>
    <message>
        <source>Event Frame Trigger Data</source>
        <translation>帧触发事件数据</translation>
    </message>
    <message>
        <source>Category for the data sent with the Frame Trigger event.</source>
        <translation>帧触发事件所附数据的类别。</translation>
    </message>
    <message>
        <source>EventFrameTrigger</source>
        <translation>帧触发事件</translation>
    </message>
    <message>
        <source>Event Frame Trigger</source>
        <translation>帧触发事件</translation>
    </message>
    <message>
        <source>Identifier of the Frame Trigger event.</source>
        <translation>帧触发事件的标识。</translation>
    </message>
    <message>
        <source>EventFrameTriggerTimestamp</source>
        <translation>帧触发事件时间戳</translation>
    </message>
    <message>
        <source>Event Frame Trigger Timestamp</source>
        <translation>帧触发事件时间戳</translation>
    </message>
    <message>
        <source>Time at which the Frame Trigger event occurred.</source>
        <translation>帧触发事件发生的时间。</translation>
    </message>
    <message>
        <source>EventFrameTriggerFrameID</source>
        <translation>帧触发事件帧号</translation>
    </message>
    <message>
        <source>Event Frame Trigger Frame ID</source>
        <translation>帧触发事件帧号</translation>
    </message>
    <message>
        <source>Frame that the Frame Trigger event belongs to.</source>
        <translation>帧触发事件所属的帧。</translation>
    </message>
    <message>
        <source>EventFrameTriggerMissedData</source>
        <translation>帧触发丢失事件数据</translation>
    </message>
    <message>
        <source>Event Frame Trigger Missed Data</source>
        <translation>帧触发丢失事件数据</translation>
    </message>
    <message>
        <source>Category for the data sent with the Frame Trigger Missed event.</source>
        <translation>帧触发丢失事件所附数据的类别。</translation>
    </message>
    <message>
        <source>EventFrameTriggerMissed</source>
        <translation>帧触发丢失事件</translation>
    </message>
    <message>
        <source>Event Frame Trigger Missed</source>
        <translation>帧触发丢失事件</translation>
    </message>
    <message>
        <source>Identifier of the Frame Trigger Missed event.</source>
        <translation>帧触发丢失事件的标识。</translation>
    </message>
    <message>
        <source>EventFrameTriggerMissedTimestamp</source>
        <translation>帧触发丢失事件时间戳</translation>
    </message>
    <message>
        <source>Event Frame Trigger Missed Timestamp</source>
        <translation>帧触发丢失事件时间戳</translation>
    </message>
    <message>
        <source>Time at which the Frame Trigger Missed event occurred.</source>
        <translation>帧触发丢失事件发生的时间。</translation>
    </message>
    <message>
        <source>EventFrameTriggerMissedFrameID</source>
        <translation>帧触发丢失事件帧号</translation>
    </message>
    <message>
        <source>Event Frame Trigger Missed Frame ID</source>
        <translation>帧触发丢失事件帧号</translation>
    </message>
    <message>
        <source>Frame that the Frame Trigger Missed event belongs to.</source>
        <translation>帧触发丢失事件所属的帧。</translation>
    </message>
    <message>
        <source>EventFrameStartData</source>
        <translation>帧开始事件数据</translation>
    </message>
    <message>
        <source>Event Frame Start Data</source>
        <translation>帧开始事件数据</translation>
    </message>
    <message>
        <source>Category for the data sent with the Frame Start event.</source>
        <translation>帧开始事件所附数据的类别。</translation>
    </message>
    <message>
        <source>EventFrameStart</source>
        <translation>帧开始事件</translation>
    </message>
    <message>
        <source>Event Frame Start</source>
        <translation>帧开始事件</translation>
    </message>
    <message>
        <source>Identifier of the Frame Start event.</source>
        <translation>帧开始事件的标识。</translation>
    </message>
    <message>
        <source>EventFrameStartTimestamp</source>
        <translation>帧开始事件时间戳</translation>
    </message>
    <message>
        <source>Event Frame Start Timestamp</source>
        <translation>帧开始事件时间戳</translation>
    </message>
    <message>
        <source>Time at which the Frame Start event occurred.</source>
        <translation>帧开始事件发生的时间。</translation>
    </message>
    <message>
        <source>EventFrameStartFrameID</source>
        <translation>帧开始事件帧号</translation>
    </message>
    <message>
        <source>Event Frame Start Frame ID</source>
        <translation>帧开始事件帧号</translation>
    </message>
    <message>
        <source>Frame that the Frame Start event belongs to.</source>
        <translation>帧开始事件所属的帧。</translation>
    </message>
    <message>
        <source>EventFrameEndData</source>
        <translation>帧结束事件数据</translation>
    </message>
    <message>
        <source>Event Frame End Data</source>
        <translation>帧结束事件数据</translation>
    </message>
    <message>
        <source>Category for the data sent with the Frame End event.</source>
        <translation>帧结束事件所附数据的类别。</translation>
    </message>
    <message>
        <source>EventFrameEnd</source>
        <translation>帧结束事件</translation>
    </message>
    <message>
        <source>Event Frame End</source>
        <translation>帧结束事件</translation>
    </message>
    <message>
        <source>Identifier of the Frame End event.</source>
        <translation>帧结束事件的标识。</translation>
    </message>
    <message>
        <source>EventFrameEndTimestamp</source>
        <translation>帧结束事件时间戳</translation>
    </message>
    <message>
        <source>Event Frame End Timestamp</source>
        <translation>帧结束事件时间戳</translation>
    </message>
    <message>
        <source>Time at which the Frame End event occurred.</source>
        <translation>帧结束事件发生的时间。</translation>
    </message>
    <message>
        <source>EventFrameEndFrameID</source>
        <translation>帧结束事件帧号</translation>
    </message>
    <message>
        <source>Event Frame End Frame ID</source>
        <translation>帧结束事件帧号</translation>
    </message>
    <message>
        <source>Frame that the Frame End event belongs to.</source>
        <translation>帧结束事件所属的帧。</translation>
    </message>
    <message>
        <source>EventFrameBurstStartData</source>
        <translation>突发帧开始事件数据</translation>
    </message>
    <message>
        <source>Event Frame Burst Start Data</source>
        <translation>突发帧开始事件数据</translation>
    </message>
    <message>
        <source>Category for the data sent with the Frame Burst Start event.</source>
        <translation>突发帧开始事件所附数据的类别。</translation>
    </message>
    <message>
        <source>EventFrameBurstStart</source>
        <translation>突发帧开始事件</translation>
    </message>
    <message>
        <source>Event Frame Burst Start</source>
        <translation>突发帧开始事件</translation>
    </message>
    <message>
        <source>Identifier of the Frame Burst Start event.</source>
        <translation>突发帧开始事件的标识。</translation>
    </message>
    <message>
        <source>EventFrameBurstStartTimestamp</source>
        <translation>突发帧开始事件时间戳</translation>
    </message>
    <message>
        <source>Event Frame Burst Start Timestamp</source>
        <translation>突发帧开始事件时间戳</translation>
    </message>
    <message>
        <source>Time at which the Frame Burst Start event occurred.</source>
        <translation>突发帧开始事件发生的时间。</translation>
    </message>
    <message>
        <source>EventFrameBurstStartFrameID</source>
        <translation>突发帧开始事件帧号</translation>
    </message>
    <message>
        <source>Event Frame Burst Start Frame ID</source>
        <translation>突发帧开始事件帧号</translation>
    </message>
    <message>
        <source>Frame that the Frame Burst Start event belongs to.</source>
        <translation>突发帧开始事件所属的帧。</translation>
    </message>
    <message>
        <source>EventFrameBurstEndData</source>
        <translation>突发帧结束事件数据</translation>
    </message>
    <message>
        <source>Event Frame Burst End Data</source>
        <translation>突发帧结束事件数据</translation>
    </message>
    <message>
        <source>Category for the data sent with the Frame Burst End event.</source>
        <translation>突发帧结束事件所附数据的类别。</translation>
    </message>
    <message>
        <source>EventFrameBurstEnd</source>
        <translation>突发帧结束事件</translation>
    </message>
    <message>
        <source>Event Frame Burst End</source>
        <translation>突发帧结束事件</translation>
    </message>
    <message>
        <source>Identifier of the Frame Burst End event.</source>
        <translation>突发帧结束事件的标识。</translation>
    </message>
    <message>
        <source>EventFrameBurstEndTimestamp</source>
        <translation>突发帧结束事件时间戳</translation>
    </message>
    <message>
        <source>Event Frame Burst End Timestamp</source>
        <translation>突发帧结束事件时间戳</translation>
    </message>
    <message>
        <source>Time at which the Frame Burst End event occurred.</source>
        <translation>突发帧结束事件发生的时间。</translation>
    </message>
    <message>
        <source>EventFrameBurstEndFrameID</source>
        <translation>突发帧结束事件帧号</translation>
    </message>
    <message>
        <source>Event Frame Burst End Frame ID</source>
        <translation>突发帧结束事件帧号</translation>
    </message>
    <message>
        <source>Frame that the Frame Burst End event belongs to.</source>
        <translation>突发帧结束事件所属的帧。</translation>
    </message>
    <message>
        <source>EventFrameTransferStartData</source>
        <translation>帧传输开始事件数据</translation>
    </message>
    <message>
        <source>Event Frame Transfer Start Data</source>
        <translation>帧传输开始事件数据</translation>
    </message>
    <message>
        <source>Category for the data sent with the Frame Transfer Start event.</source>
        <translation>帧传输开始事件所附数据的类别。</translation>
    </message>
    <message>
        <source>EventFrameTransferStart</source>
        <translation>帧传输开始事件</translation>
    </message>
    <message>
        <source>Event Frame Transfer Start</source>
        <translation>帧传输开始事件</translation>
    </message>
    <message>
        <source>Identifier of the Frame Transfer Start event.</source>
        <translation>帧传输开始事件的标识。</translation>
    </message>
    <message>
        <source>EventFrameTransferStartTimestamp</source>
        <translation>帧传输开始事件时间戳</translation>
    </message>
    <message>
        <source>Event Frame Transfer Start Timestamp</source>
        <translation>帧传输开始事件时间戳</translation>
    </message>
    <message>
        <source>Time at which the Frame Transfer Start event occurred.</source>
        <translation>帧传输开始事件发生的时间。</translation>
    </message>
    <message>
        <source>EventFrameTransferStartFrameID</source>
        <translation>帧传输开始事件帧号</translation>
    </message>
    <message>
        <source>Event Frame Transfer Start Frame ID</source>
        <translation>帧传输开始事件帧号</translation>
    </message>
    <message>
        <source>Frame that the Frame Transfer Start event belongs to.</source>
        <translation>帧传输开始事件所属的帧。</translation>
    </message>
    <message>
        <source>EventFrameTransferEndData</source>
        <translation>帧传输结束事件数据</translation>
    </message>
    <message>
        <source>Event Frame Transfer End Data</source>
        <translation>帧传输结束事件数据</translation>
    </message>
    <message>
        <source>Category for the data sent with the Frame Transfer End event.</source>
        <translation>帧传输结束事件所附数据的类别。</translation>
    </message>
    <message>
        <source>EventFrameTransferEnd</source>
        <translation>帧传输结束事件</translation>
    </message>
    <message>
        <source>Event Frame Transfer End</source>
        <translation>帧传输结束事件</translation>
    </message>
    <message>
        <source>Identifier of the Frame Transfer End event.</source>
        <translation>帧传输结束事件的标识。</translation>
    </message>
    <message>
        <source>EventFrameTransferEndTimestamp</source>
        <translation>帧传输结束事件时间戳</translation>
    </message>
    <message>
        <source>Event Frame Transfer End Timestamp</source>
        <translation>帧传输结束事件时间戳</translation>
    </message>
    <message>
        <source>Time at which the Frame Transfer End event occurred.</source>
        <translation>帧传输结束事件发生的时间。</translation>
    </message>
    <message>
        <source>EventFrameTransferEndFrameID</source>
        <translation>帧传输结束事件帧号</translation>
    </message>
    <message>
        <source>Event Frame Transfer End Frame ID</source>
        <translation>帧传输结束事件帧号</translation>
    </message>
    <message>
        <source>Frame that the Frame Transfer End event belongs to.</source>
        <translation>帧传输结束事件所属的帧。</translation>
    </message>
    <message>
        <source>EventExposureStartData</source>
        <translation>曝光开始事件数据</translation>
    </message>
    <message>
        <source>Event Exposure Start Data</source>
        <translation>曝光开始事件数据</translation>
    </message>
    <message>
        <source>Category for the data sent with the Exposure Start event.</source>
        <translation>曝光开始事件所附数据的类别。</translation>
    </message>
    <message>
        <source>EventExposureStart</source>
        <translation>曝光开始事件</translation>
    </message>
    <message>
        <source>Event Exposure Start</source>
        <translation>曝光开始事件</translation>
    </message>
    <message>
        <source>Identifier of the Exposure Start event.</source>
        <translation>曝光开始事件的标识。</translation>
    </message>
    <message>
        <source>EventExposureStartTimestamp</source>
        <translation>曝光开始事件时间戳</translation>
    </message>
    <message>
        <source>Event Exposure Start Timestamp</source>
        <translation>曝光开始事件时间戳</translation>
    </message>
    <message>
        <source>Time at which the Exposure Start event occurred.</source>
        <translation>曝光开始事件发生的时间。</translation>
    </message>
    <message>
        <source>EventExposureStartFrameID</source>
        <translation>曝光开始事件帧号</translation>
    </message>
    <message>
        <source>Event Exposure Start Frame ID</source>
        <translation>曝光开始事件帧号</translation>
    </message>
    <message>
        <source>Frame that the Exposure Start event belongs to.</source>
        <translation>曝光开始事件所属的帧。</translation>
    </message>
    <message>
        <source>EventExposureEndData</source>
        <translation>曝光结束事件数据</translation>
    </message>
    <message>
        <source>Event Exposure End Data</source>
        <translation>曝光结束事件数据</translation>
    </message>
    <message>
        <source>Category for the data sent with the Exposure End event.</source>
        <translation>曝光结束事件所附数据的类别。</translation>
    </message>
    <message>
        <source>EventExposureEnd</source>
        <translation>曝光结束事件</translation>
    </message>
    <message>
        <source>Event Exposure End</source>
        <translation>曝光结束事件</translation>
    </message>
    <message>
        <source>Identifier of the Exposure End event.</source>
        <translation>曝光结束事件的标识。</translation>
    </message>
    <message>
        <source>EventExposureEndTimestamp</source>
        <translation>曝光结束事件时间戳</translation>
    </message>
    <message>
        <source>Event Exposure End Timestamp</source>
        <translation>曝光结束事件时间戳</translation>
    </message>
    <message>
        <source>Time at which the Exposure End event occurred.</source>
        <translation>曝光结束事件发生的时间。</translation>
    </message>
    <message>
        <source>EventExposureEndFrameID</source>
        <translation>曝光结束事件帧号</translation>
    </message>
    <message>
        <source>Event Exposure End Frame ID</source>
        <translation>曝光结束事件帧号</translation>
    </message>
    <message>
        <source>Frame that the Exposure End event belongs to.</source>
        <translation>曝光结束事件所属的帧。</translation>
    </message>
    <message>
        <source>EventStream0TransferStartData</source>
        <translation>数据流0传输开始事件数据</translation>
    </message>
    <message>
        <source>Event Stream 0 Transfer Start Data</source>
        <translation>数据流0传输开始事件数据</translation>
    </message>
    <message>
        <source>Category for the data sent with the Stream 0 Transfer Start event.</source>
        <translation>数据流0传输开始事件所附数据的类别。</translation>
    </message>
    <message>
        <source>EventStream0TransferStart</source>
        <translation>数据流0传输开始事件</translation>
    </message>
    <message>
        <source>Event Stream 0 Transfer Start</source>
        <translation>数据流0传输开始事件</translation>
    </message>
    <message>
        <source>Identifier of the Stream 0 Transfer Start event.</source>
        <translation>数据流0传输开始事件的标识。</translation>
    </message>
    <message>
        <source>EventStream0TransferStartTimestamp</source>
        <translation>数据流0传输开始事件时间戳</translation>
    </message>
    <message>
        <source>Event Stream 0 Transfer Start Timestamp</source>
        <translation>数据流0传输开始事件时间戳</translation>
    </message>
    <message>
        <source>Time at which the Stream 0 Transfer Start event occurred.</source>
        <translation>数据流0传输开始事件发生的时间。</translation>
    </message>
    <message>
        <source>EventStream0TransferStartFrameID</source>
        <translation>数据流0传输开始事件帧号</translation>
    </message>
    <message>
        <source>Event Stream 0 Transfer Start Frame ID</source>
        <translation>数据流0传输开始事件帧号</translation>
    </message>
    <message>
        <source>Frame that the Stream 0 Transfer Start event belongs to.</source>
        <translation>数据流0传输开始事件所属的帧。</translation>
    </message>
    <message>
        <source>EventStream0TransferEndData</source>
        <translation>数据流0传输结束事件数据</translation>
    </message>
    <message>
        <source>Event Stream 0 Transfer End Data</source>
        <translation>数据流0传输结束事件数据</translation>
    </message>
    <message>
        <source>Category for the data sent with the Stream 0 Transfer End event.</source>
        <translation>数据流0传输结束事件所附数据的类别。</translation>
    </message>
    <message>
        <source>EventStream0TransferEnd</source>
        <translation>数据流0传输结束事件</translation>
    </message>
    <message>
        <source>Event Stream 0 Transfer End</source>
        <translation>数据流0传输结束事件</translation>
    </message>
    <message>
        <source>Identifier of the Stream 0 Transfer End event.</source>
        <translation>数据流0传输结束事件的标识。</translation>
    </message>
    <message>
        <source>EventStream0TransferEndTimestamp</source>
        <translation>数据流0传输结束事件时间戳</translation>
    </message>
    <message>
        <source>Event Stream 0 Transfer End Timestamp</source>
        <translation>数据流0传输结束事件时间戳</translation>
    </message>
    <message>
        <source>Time at which the Stream 0 Transfer End event occurred.</source>
        <translation>数据流0传输结束事件发生的时间。</translation>
    </message>
    <message>
        <source>EventStream0TransferEndFrameID</source>
        <translation>数据流0传输结束事件帧号</translation>
    </message>
    <message>
        <source>Event Stream 0 Transfer End Frame ID</source>
        <translation>数据流0传输结束事件帧号</translation>
    </message>
    <message>
        <source>Frame that the Stream 0 Transfer End event belongs to.</source>
        <translation>数据流0传输结束事件所属的帧。</translation>
    </message>
    <message>
        <source>EventStream0TransferOverflowData</source>
        <translation>数据流0传输溢出事件数据</translation>
    </message>
    <message>
        <source>Event Stream 0 Transfer Overflow Data</source>
        <translation>数据流0传输溢出事件数据</translation>
    </message>
    <message>
        <source>Category for the data sent with the Stream 0 Transfer Overflow event.</source>
        <translation>数据流0传输溢出事件所附数据的类别。</translation>
    </message>
    <message>
        <source>EventStream0TransferOverflow</source>
        <translation>数据流0传输溢出事件</translation>
    </message>
    <message>
        <source>Event Stream 0 Transfer Overflow</source>
        <translation>数据流0传输溢出事件</translation>
    </message>
    <message>
        <source>Identifier of the Stream 0 Transfer Overflow event.</source>
        <translation>数据流0传输溢出事件的标识。</translation>
    </message>
    <message>
        <source>EventStream0TransferOverflowTimestamp</source>
        <translation>数据流0传输溢出事件时间戳</translation>
    </message>
    <message>
        <source>Event Stream 0 Transfer Overflow Timestamp</source>
        <translation>数据流0传输溢出事件时间戳</translation>
    </message>
    <message>
        <source>Time at which the Stream 0 Transfer Overflow event occurred.</source>
        <translation>数据流0传输溢出事件发生的时间。</translation>
    </message>
    <message>
        <source>EventStream0TransferOverflowFrameID</source>
        <translation>数据流0传输溢出事件帧号</translation>
    </message>
    <message>
        <source>Event Stream 0 Transfer Overflow Frame ID</source>
        <translation>数据流0传输溢出事件帧号</translation>
    </message>
    <message>
        <source>Frame that the Stream 0 Transfer Overflow event belongs to.</source>
        <translation>数据流0传输溢出事件所属的帧。</translation>
    </message>
    <message>
        <source>EventSequencerSetChangeData</source>
        <translation>序列器集切换事件数据</translation>
    </message>
    <message>
        <source>Event Sequencer Set Change Data</source>
        <translation>序列器集切换事件数据</translation>
    </message>
    <message>
        <source>Category for the data sent with the Sequencer Set Change event.</source>
        <translation>序列器集切换事件所附数据的类别。</translation>
    </message>
    <message>
        <source>EventSequencerSetChange</source>
        <translation>序列器集切换事件</translation>
    </message>
    <message>
        <source>Event Sequencer Set Change</source>
        <translation>序列器集切换事件</translation>
    </message>
    <message>
        <source>Identifier of the Sequencer Set Change event.</source>
        <translation>序列器集切换事件的标识。</translation>
    </message>
    <message>
        <source>EventSequencerSetChangeTimestamp</source>
        <translation>序列器集切换事件时间戳</translation>
    </message>
    <message>
        <source>Event Sequencer Set Change Timestamp</source>
        <translation>序列器集切换事件时间戳</translation>
    </message>
    <message>
        <source>Time at which the Sequencer Set Change event occurred.</source>
        <translation>序列器集切换事件发生的时间。</translation>
    </message>
    <message>
        <source>EventSequencerSetChangeFrameID</source>
        <translation>序列器集切换事件帧号</translation>
    </message>
    <message>
        <source>Event Sequencer Set Change Frame ID</source>
        <translation>序列器集切换事件帧号</translation>
    </message>
    <message>
        <source>Frame that the Sequencer Set Change event belongs to.</source>
        <translation>序列器集切换事件所属的帧。</translation>
    </message>
    <message>
        <source>EventCounter0StartData</source>
        <translation>计数器0开始事件数据</translation>
    </message>
    <message>
        <source>Event Counter 0 Start Data</source>
        <translation>计数器0开始事件数据</translation>
    </message>
    <message>
        <source>Category for the data sent with the Counter 0 Start event.</source>
        <translation>计数器0开始事件所附数据的类别。</translation>
    </message>
    <message>
        <source>EventCounter0Start</source>
        <translation>计数器0开始事件</translation>
    </message>
    <message>
        <source>Event Counter 0 Start</source>
        <translation>计数器0开始事件</translation>
    </message>
    <message>
        <source>Identifier of the Counter 0 Start event.</source>
        <translation>计数器0开始事件的标识。</translation>
    </message>
    <message>
        <source>EventCounter0StartTimestamp</source>
        <translation>计数器0开始事件时间戳</translation>
    </message>
    <message>
        <source>Event Counter 0 Start Timestamp</source>
        <translation>计数器0开始事件时间戳</translation>
    </message>
    <message>
        <source>Time at which the Counter 0 Start event occurred.</source>
        <translation>计数器0开始事件发生的时间。</translation>
    </message>
    <message>
        <source>EventCounter0StartFrameID</source>
        <translation>计数器0开始事件帧号</translation>
    </message>
    <message>
        <source>Event Counter 0 Start Frame ID</source>
        <translation>计数器0开始事件帧号</translation>
    </message>
    <message>
        <source>Frame that the Counter 0 Start event belongs to.</source>
        <translation>计数器0开始事件所属的帧。</translation>
    </message>
    <message>
        <source>EventCounter0EndData</source>
        <translation>计数器0结束事件数据</translation>
    </message>
    <message>
        <source>Event Counter 0 End Data</source>
        <translation>计数器0结束事件数据</translation>
    </message>
    <message>
        <source>Category for the data sent with the Counter 0 End event.</source>
        <translation>计数器0结束事件所附数据的类别。</translation>
    </message>
    <message>
        <source>EventCounter0End</source>
        <translation>计数器0结束事件</translation>
    </message>
    <message>
        <source>Event Counter 0 End</source>
        <translation>计数器0结束事件</translation>
    </message>
    <message>
        <source>Identifier of the Counter 0 End event.</source>
        <translation>计数器0结束事件的标识。</translation>
    </message>
    <message>
        <source>EventCounter0EndTimestamp</source>
        <translation>计数器0结束事件时间戳</translation>
    </message>
    <message>
        <source>Event Counter 0 End Timestamp</source>
        <translation>计数器0结束事件时间戳</translation>
    </message>
    <message>
        <source>Time at which the Counter 0 End event occurred.</source>
        <translation>计数器0结束事件发生的时间。</translation>
    </message>
    <message>
        <source>EventCounter0EndFrameID</source>
        <translation>计数器0结束事件帧号</translation>
    </message>
    <message>
        <source>Event Counter 0 End Frame ID</source>
        <translation>计数器0结束事件帧号</translation>
    </message>
    <message>
        <source>Frame that the Counter 0 End event belongs to.</source>
        <translation>计数器0结束事件所属的帧。</translation>
    </message>
    <message>
        <source>EventTimer0StartData</source>
        <translation>定时器0开始事件数据</translation>
    </message>
    <message>
        <source>Event Timer 0 Start Data</source>
        <translation>定时器0开始事件数据</translation>
    </message>
    <message>
        <source>Category for the data sent with the Timer 0 Start event.</source>
        <translation>定时器0开始事件所附数据的类别。</translation>
    </message>
    <message>
        <source>EventTimer0Start</source>
        <translation>定时器0开始事件</translation>
    </message>
    <message>
        <source>Event Timer 0 Start</source>
        <translation>定时器0开始事件</translation>
    </message>
    <message>
        <source>Identifier of the Timer 0 Start event.</source>
        <translation>定时器0开始事件的标识。</translation>
    </message>
    <message>
        <source>EventTimer0StartTimestamp</source>
        <translation>定时器0开始事件时间戳</translation>
    </message>
    <message>
        <source>Event Timer 0 Start Timestamp</source>
        <translation>定时器0开始事件时间戳</translation>
    </message>
    <message>
        <source>Time at which the Timer 0 Start event occurred.</source>
        <translation>定时器0开始事件发生的时间。</translation>
    </message>
    <message>
        <source>EventTimer0StartFrameID</source>
        <translation>定时器0开始事件帧号</translation>
    </message>
    <message>
        <source>Event Timer 0 Start Frame ID</source>
        <translation>定时器0开始事件帧号</translation>
    </message>
    <message>
        <source>Frame that the Timer 0 Start event belongs to.</source>
        <translation>定时器0开始事件所属的帧。</translation>
    </message>
    <message>
        <source>EventTimer0EndData</source>
        <translation>定时器0结束事件数据</translation>
    </message>
    <message>
        <source>Event Timer 0 End Data</source>
        <translation>定时器0结束事件数据</translation>
    </message>
    <message>
        <source>Category for the data sent with the Timer 0 End event.</source>
        <translation>定时器0结束事件所附数据的类别。</translation>
    </message>
    <message>
        <source>EventTimer0End</source>
        <translation>定时器0结束事件</translation>
    </message>
    <message>
        <source>Event Timer 0 End</source>
        <translation>定时器0结束事件</translation>
    </message>
    <message>
        <source>Identifier of the Timer 0 End event.</source>
        <translation>定时器0结束事件的标识。</translation>
    </message>
    <message>
        <source>EventTimer0EndTimestamp</source>
        <translation>定时器0结束事件时间戳</translation>
    </message>
    <message>
        <source>Event Timer 0 End Timestamp</source>
        <translation>定时器0结束事件时间戳</translation>
    </message>
    <message>
        <source>Time at which the Timer 0 End event occurred.</source>
        <translation>定时器0结束事件发生的时间。</translation>
    </message>
    <message>
        <source>EventTimer0EndFrameID</source>
        <translation>定时器0结束事件帧号</translation>
    </message>
    <message>
        <source>Event Timer 0 End Frame ID</source>
        <translation>定时器0结束事件帧号</translation>
    </message>
    <message>
        <source>Frame that the Timer 0 End event belongs to.</source>
        <translation>定时器0结束事件所属的帧。</translation>
    </message>
    <message>
        <source>EventEncoder0StoppedData</source>
        <translation>编码器0停止事件数据</translation>
    </message>
    <message>
        <source>Event Encoder 0 Stopped Data</source>
        <translation>编码器0停止事件数据</translation>
    </message>
    <message>
        <source>Category for the data sent with the Encoder 0 Stopped event.</source>
        <translation>编码器0停止事件所附数据的类别。</translation>
    </message>
    <message>
        <source>EventEncoder0Stopped</source>
        <translation>编码器0停止事件</translation>
    </message>
    <message>
        <source>Event Encoder 0 Stopped</source>
        <translation>编码器0停止事件</translation>
    </message>
    <message>
        <source>Identifier of the Encoder 0 Stopped event.</source>
        <translation>编码器0停止事件的标识。</translation>
    </message>
    <message>
        <source>EventEncoder0StoppedTimestamp</source>
        <translation>编码器0停止事件时间戳</translation>
    </message>
    <message>
        <source>Event Encoder 0 Stopped Timestamp</source>
        <translation>编码器0停止事件时间戳</translation>
    </message>
    <message>
        <source>Time at which the Encoder 0 Stopped event occurred.</source>
        <translation>编码器0停止事件发生的时间。</translation>
    </message>
    <message>
        <source>EventEncoder0StoppedFrameID</source>
        <translation>编码器0停止事件帧号</translation>
    </message>
    <message>
        <source>Event Encoder 0 Stopped Frame ID</source>
        <translation>编码器0停止事件帧号</translation>
    </message>
    <message>
        <source>Frame that the Encoder 0 Stopped event belongs to.</source>
        <translation>编码器0停止事件所属的帧。</translation>
    </message>
    <message>
        <source>EventEncoder0RestartedData</source>
        <translation>编码器0重新启动事件数据</translation>
    </message>
    <message>
        <source>Event Encoder 0 Restarted Data</source>
        <translation>编码器0重新启动事件数据</translation>
    </message>
    <message>
        <source>Category for the data sent with the Encoder 0 Restarted event.</source>
        <translation>编码器0重新启动事件所附数据的类别。</translation>
    </message>
    <message>
        <source>EventEncoder0Restarted</source>
        <translation>编码器0重新启动事件</translation>
    </message>
    <message>
        <source>Event Encoder 0 Restarted</source>
        <translation>编码器0重新启动事件</translation>
    </message>
    <message>
        <source>Identifier of the Encoder 0 Restarted event.</source>
        <translation>编码器0重新启动事件的标识。</translation>
    </message>
    <message>
        <source>EventEncoder0RestartedTimestamp</source>
        <translation>编码器0重新启动事件时间戳</translation>
    </message>
    <message>
        <source>Event Encoder 0 Restarted Timestamp</source>
        <translation>编码器0重新启动事件时间戳</translation>
    </message>
    <message>
        <source>Time at which the Encoder 0 Restarted event occurred.</source>
        <translation>编码器0重新启动事件发生的时间。</translation>
    </message>
    <message>
        <source>EventEncoder0RestartedFrameID</source>
        <translation>编码器0重新启动事件帧号</translation>
    </message>
    <message>
        <source>Event Encoder 0 Restarted Frame ID</source>
        <translation>编码器0重新启动事件帧号</translation>
    </message>
    <message>
        <source>Frame that the Encoder 0 Restarted event belongs to.</source>
        <translation>编码器0重新启动事件所属的帧。</translation>
    </message>
    <message>
        <source>EventLine0RisingEdgeData</source>
        <translation>线路0上升沿事件数据</translation>
    </message>
    <message>
        <source>Event Line 0 Rising Edge Data</source>
        <translation>线路0上升沿事件数据</translation>
    </message>
    <message>
        <source>Category for the data sent with the Line 0 Rising Edge event.</source>
        <translation>线路0上升沿事件所附数据的类别。</translation>
    </message>
    <message>
        <source>EventLine0RisingEdge</source>
        <translation>线路0上升沿事件</translation>
    </message>
    <message>
        <source>Event Line 0 Rising Edge</source>
        <translation>线路0上升沿事件</translation>
    </message>
    <message>
        <source>Identifier of the Line 0 Rising Edge event.</source>
        <translation>线路0上升沿事件的标识。</translation>
    </message>
    <message>
        <source>EventLine0RisingEdgeTimestamp</source>
        <translation>线路0上升沿事件时间戳</translation>
    </message>
    <message>
        <source>Event Line 0 Rising Edge Timestamp</source>
        <translation>线路0上升沿事件时间戳</translation>
    </message>
    <message>
        <source>Time at which the Line 0 Rising Edge event occurred.</source>
        <translation>线路0上升沿事件发生的时间。</translation>
    </message>
    <message>
        <source>EventLine0RisingEdgeFrameID</source>
        <translation>线路0上升沿事件帧号</translation>
    </message>
    <message>
        <source>Event Line 0 Rising Edge Frame ID</source>
        <translation>线路0上升沿事件帧号</translation>
    </message>
    <message>
        <source>Frame that the Line 0 Rising Edge event belongs to.</source>
        <translation>线路0上升沿事件所属的帧。</translation>
    </message>
    <message>
        <source>EventLine0FallingEdgeData</source>
        <translation>线路0下降沿事件数据</translation>
    </message>
    <message>
        <source>Event Line 0 Falling Edge Data</source>
        <translation>线路0下降沿事件数据</translation>
    </message>
    <message>
        <source>Category for the data sent with the Line 0 Falling Edge event.</source>
        <translation>线路0下降沿事件所附数据的类别。</translation>
    </message>
    <message>
        <source>EventLine0FallingEdge</source>
        <translation>线路0下降沿事件</translation>
    </message>
    <message>
        <source>Event Line 0 Falling Edge</source>
        <translation>线路0下降沿事件</translation>
    </message>
    <message>
        <source>Identifier of the Line 0 Falling Edge event.</source>
        <translation>线路0下降沿事件的标识。</translation>
    </message>
    <message>
        <source>EventLine0FallingEdgeTimestamp</source>
        <translation>线路0下降沿事件时间戳</translation>
    </message>
    <message>
        <source>Event Line 0 Falling Edge Timestamp</source>
        <translation>线路0下降沿事件时间戳</translation>
    </message>
    <message>
        <source>Time at which the Line 0 Falling Edge event occurred.</source>
        <translation>线路0下降沿事件发生的时间。</translation>
    </message>
    <message>
        <source>EventLine0FallingEdgeFrameID</source>
        <translation>线路0下降沿事件帧号</translation>
    </message>
    <message>
        <source>Event Line 0 Falling Edge Frame ID</source>
        <translation>线路0下降沿事件帧号</translation>
    </message>
    <message>
        <source>Frame that the Line 0 Falling Edge event belongs to.</source>
        <translation>线路0下降沿事件所属的帧。</translation>
    </message>
    <message>
        <source>EventLine1RisingEdgeData</source>
        <translation>线路1上升沿事件数据</translation>
    </message>
    <message>
        <source>Event Line 1 Rising Edge Data</source>
        <translation>线路1上升沿事件数据</translation>
    </message>
    <message>
        <source>Category for the data sent with the Line 1 Rising Edge event.</source>
        <translation>线路1上升沿事件所附数据的类别。</translation>
    </message>
    <message>
        <source>EventLine1RisingEdge</source>
        <translation>线路1上升沿事件</translation>
    </message>
    <message>
        <source>Event Line 1 Rising Edge</source>
        <translation>线路1上升沿事件</translation>
    </message>
    <message>
        <source>Identifier of the Line 1 Rising Edge event.</source>
        <translation>线路1上升沿事件的标识。</translation>
    </message>
    <message>
        <source>EventLine1RisingEdgeTimestamp</source>
        <translation>线路1上升沿事件时间戳</translation>
    </message>
    <message>
        <source>Event Line 1 Rising Edge Timestamp</source>
        <translation>线路1上升沿事件时间戳</translation>
    </message>
    <message>
        <source>Time at which the Line 1 Rising Edge event occurred.</source>
        <translation>线路1上升沿事件发生的时间。</translation>
    </message>
    <message>
        <source>EventLine1RisingEdgeFrameID</source>
        <translation>线路1上升沿事件帧号</translation>
    </message>
    <message>
        <source>Event Line 1 Rising Edge Frame ID</source>
        <translation>线路1上升沿事件帧号</translation>
    </message>
    <message>
        <source>Frame that the Line 1 Rising Edge event belongs to.</source>
        <translation>线路1上升沿事件所属的帧。</translation>
    </message>
    <message>
        <source>EventLine1FallingEdgeData</source>
        <translation>线路1下降沿事件数据</translation>
    </message>
    <message>
        <source>Event Line 1 Falling Edge Data</source>
        <translation>线路1下降沿事件数据</translation>
    </message>
    <message>
        <source>Category for the data sent with the Line 1 Falling Edge event.</source>
        <translation>线路1下降沿事件所附数据的类别。</translation>
    </message>
    <message>
        <source>EventLine1FallingEdge</source>
        <translation>线路1下降沿事件</translation>
    </message>
    <message>
        <source>Event Line 1 Falling Edge</source>
        <translation>线路1下降沿事件</translation>
    </message>
    <message>
        <source>Identifier of the Line 1 Falling Edge event.</source>
        <translation>线路1下降沿事件的标识。</translation>
    </message>
    <message>
        <source>EventLine1FallingEdgeTimestamp</source>
        <translation>线路1下降沿事件时间戳</translation>
    </message>
    <message>
        <source>Event Line 1 Falling Edge Timestamp</source>
        <translation>线路1下降沿事件时间戳</translation>
    </message>
    <message>
        <source>Time at which the Line 1 Falling Edge event occurred.</source>
        <translation>线路1下降沿事件发生的时间。</translation>
    </message>
    <message>
        <source>EventLine1FallingEdgeFrameID</source>
        <translation>线路1下降沿事件帧号</translation>
    </message>
    <message>
        <source>Event Line 1 Falling Edge Frame ID</source>
        <translation>线路1下降沿事件帧号</translation>
    </message>
    <message>
        <source>Frame that the Line 1 Falling Edge event belongs to.</source>
        <translation>线路1下降沿事件所属的帧。</translation>
    </message>
    <message>
        <source>EventLinkTrigger0Data</source>
        <translation>链路触发0事件数据</translation>
    </message>
    <message>
        <source>Event Link Trigger 0 Data</source>
        <translation>链路触发0事件数据</translation>
    </message>
    <message>
        <source>Category for the data sent with the Link Trigger 0 event.</source>
        <translation>链路触发0事件所附数据的类别。</translation>
    </message>
    <message>
        <source>EventLinkTrigger0</source>
        <translation>链路触发0事件</translation>
    </message>
    <message>
        <source>Event Link Trigger 0</source>
        <translation>链路触发0事件</translation>
    </message>
    <message>
        <source>Identifier of the Link Trigger 0 event.</source>
        <translation>链路触发0事件的标识。</translation>
    </message>
    <message>
        <source>EventLinkTrigger0Timestamp</source>
        <translation>链路触发0事件时间戳</translation>
    </message>
    <message>
        <source>Event Link Trigger 0 Timestamp</source>
        <translation>链路触发0事件时间戳</translation>
    </message>
    <message>
        <source>Time at which the Link Trigger 0 event occurred.</source>
        <translation>链路触发0事件发生的时间。</translation>
    </message>
    <message>
        <source>EventLinkTrigger0FrameID</source>
        <translation>链路触发0事件帧号</translation>
    </message>
    <message>
        <source>Event Link Trigger 0 Frame ID</source>
        <translation>链路触发0事件帧号</translation>
    </message>
    <message>
        <source>Frame that the Link Trigger 0 event belongs to.</source>
        <translation>链路触发0事件所属的帧。</translation>
    </message>
    <message>
        <source>EventActionLateData</source>
        <translation>动作命令超时事件数据</translation>
    </message>
    <message>
        <source>Event Action Late Data</source>
        <translation>动作命令超时事件数据</translation>
    </message>
    <message>
        <source>Category for the data sent with the Action Late event.</source>
        <translation>动作命令超时事件所附数据的类别。</translation>
    </message>
    <message>
        <source>EventActionLate</source>
        <translation>动作命令超时事件</translation>
    </message>
    <message>
        <source>Event Action Late</source>
        <translation>动作命令超时事件</translation>
    </message>
    <message>
        <source>Identifier of the Action Late event.</source>
        <translation>动作命令超时事件的标识。</translation>
    </message>
    <message>
        <source>EventActionLateTimestamp</source>
        <translation>动作命令超时事件时间戳</translation>
    </message>
    <message>
        <source>Event Action Late Timestamp</source>
        <translation>动作命令超时事件时间戳</translation>
    </message>
    <message>
        <source>Time at which the Action Late event occurred.</source>
        <translation>动作命令超时事件发生的时间。</translation>
    </message>
    <message>
        <source>EventActionLateFrameID</source>
        <translation>动作命令超时事件帧号</translation>
    </message>
    <message>
        <source>Event Action Late Frame ID</source>
        <translation>动作命令超时事件帧号</translation>
    </message>
    <message>
        <source>Frame that the Action Late event belongs to.</source>
        <translation>动作命令超时事件所属的帧。</translation>
    </message>
    <message>
        <source>EventErrorData</source>
        <translation>错误事件数据</translation>
    </message>
    <message>
        <source>Event Error Data</source>
        <translation>错误事件数据</translation>
    </message>
    <message>
        <source>Category for the data sent with the Error event.</source>
        <translation>错误事件所附数据的类别。</translation>
    </message>
    <message>
        <source>EventError</source>
        <translation>错误事件</translation>
    </message>
    <message>
        <source>Event Error</source>
        <translation>错误事件</translation>
    </message>
    <message>
        <source>Identifier of the Error event.</source>
        <translation>错误事件的标识。</translation>
    </message>
    <message>
        <source>EventErrorTimestamp</source>
        <translation>错误事件时间戳</translation>
    </message>
    <message>
        <source>Event Error Timestamp</source>
        <translation>错误事件时间戳</translation>
    </message>
    <message>
        <source>Time at which the Error event occurred.</source>
        <translation>错误事件发生的时间。</translation>
    </message>
    <message>
        <source>EventErrorFrameID</source>
        <translation>错误事件帧号</translation>
    </message>
    <message>
        <source>Event Error Frame ID</source>
        <translation>错误事件帧号</translation>
    </message>
    <message>
        <source>Frame that the Error event belongs to.</source>
        <translation>错误事件所属的帧。</translation>
    </message>
    <message>
        <source>EventTestData</source>
        <translation>测试事件数据</translation>
    </message>
    <message>
        <source>Event Test Data</source>
        <translation>测试事件数据</translation>
    </message>
    <message>
        <source>Category for the data sent with the Test event.</source>
        <translation>测试事件所附数据的类别。</translation>
    </message>
    <message>
        <source>EventTest</source>
        <translation>测试事件</translation>
    </message>
    <message>
        <source>Event Test</source>
        <translation>测试事件</translation>
    </message>
    <message>
        <source>Identifier of the Test event.</source>
        <translation>测试事件的标识。</translation>
    </message>
    <message>
        <source>EventTestTimestamp</source>
        <translation>测试事件时间戳</translation>
    </message>
    <message>
        <source>Event Test Timestamp</source>
        <translation>测试事件时间戳</translation>
    </message>
    <message>
        <source>Time at which the Test event occurred.</source>
        <translation>测试事件发生的时间。</translation>
    </message>
    <message>
        <source>EventTestFrameID</source>
        <translation>测试事件帧号</translation>
    </message>
    <message>
        <source>Event Test Frame ID</source>
        <translation>测试事件帧号</translation>
    </message>
    <message>
        <source>Frame that the Test event belongs to.</source>
        <translation>测试事件所属的帧。</translation>
    </message>
    <message>
        <source>EventPrimaryApplicationSwitchData</source>
        <translation>主控应用切换事件数据</translation>
    </message>
    <message>
        <source>Event Primary Application Switch Data</source>
        <translation>主控应用切换事件数据</translation>
    </message>
    <message>
        <source>Category for the data sent with the Primary Application Switch event.</source>
        <translation>主控应用切换事件所附数据的类别。</translation>
    </message>
    <message>
        <source>EventPrimaryApplicationSwitch</source>
        <translation>主控应用切换事件</translation>
    </message>
    <message>
        <source>Event Primary Application Switch</source>
        <translation>主控应用切换事件</translation>
    </message>
    <message>
        <source>Identifier of the Primary Application Switch event.</source>
        <translation>主控应用切换事件的标识。</translation>
    </message>
    <message>
        <source>EventPrimaryApplicationSwitchTimestamp</source>
        <translation>主控应用切换事件时间戳</translation>
    </message>
    <message>
        <source>Event Primary Application Switch Timestamp</source>
        <translation>主控应用切换事件时间戳</translation>
    </message>
    <message>
        <source>Time at which the Primary Application Switch event occurred.</source>
        <translation>主控应用切换事件发生的时间。</translation>
    </message>
    <message>
        <source>EventPrimaryApplicationSwitchFrameID</source>
        <translation>主控应用切换事件帧号</translation>
    </message>
    <message>
        <source>Event Primary Application Switch Frame ID</source>
        <translation>主控应用切换事件帧号</translation>
    </message>
    <message>
        <source>Frame that the Primary Application Switch event belongs to.</source>
        <translation>主控应用切换事件所属的帧。</translation>
    </message>
    <message>
        <source>EventLinkSpeedChangeData</source>
        <translation>链路速率变化事件数据</translation>
    </message>
    <message>
        <source>Event Link Speed Change Data</source>
        <translation>链路速率变化事件数据</translation>
    </message>
    <message>
        <source>Category for the data sent with the Link Speed Change event.</source>
        <translation>链路速率变化事件所附数据的类别。</translation>
    </message>
    <message>
        <source>EventLinkSpeedChange</source>
        <translation>链路速率变化事件</translation>
    </message>
    <message>
        <source>Event Link Speed Change</source>
        <translation>链路速率变化事件</translation>
    </message>
    <message>
        <source>Identifier of the Link Speed Change event.</source>
        <translation>链路速率变化事件的标识。</translation>
    </message>
    <message>
        <source>EventLinkSpeedChangeTimestamp</source>
        <translation>链路速率变化事件时间戳</translation>
    </message>
    <message>
        <source>Event Link Speed Change Timestamp</source>
        <translation>链路速率变化事件时间戳</translation>
    </message>
    <message>
        <source>Time at which the Link Speed Change event occurred.</source>
        <translation>链路速率变化事件发生的时间。</translation>
    </message>
    <message>
        <source>EventLinkSpeedChangeFrameID</source>
        <translation>链路速率变化事件帧号</translation>
    </message>
    <message>
        <source>Event Link Speed Change Frame ID</source>
        <translation>链路速率变化事件帧号</translation>
    </message>
    <message>
        <source>Frame that the Link Speed Change event belongs to.</source>
        <translation>链路速率变化事件所属的帧。</translation>
    </message>
    <message>
        <source>UserSetControl</source>
        <translation>用户集控制</translation>
    </message>
    <message>
        <source>User Set Control</source>
        <translation>用户集控制</translation>
    </message>
    <message>
        <source>Category for saving and loading sets of user settings.</source>
        <translation>保存与加载用户参数集相关的类别。</translation>
    </message>
    <message>
        <source>UserSetSelector</source>
        <translation>用户集选择器</translation>
    </message>
    <message>
        <source>User Set Selector</source>
        <translation>用户集选择器</translation>
    </message>
    <message>
        <source>Chooses the user set to load or save.</source>
        <translation>选择要加载或保存的用户参数集。</translation>
    </message>
    <message>
        <source>UserSetLoad</source>
        <translation>加载用户集</translation>
    </message>
    <message>
        <source>User Set Load</source>
        <translation>加载用户集</translation>
    </message>
    <message>
        <source>Loads the chosen user set into the device.</source>
        <translation>将所选用户参数集加载到设备。</translation>
    </message>
    <message>
        <source>UserSetSave</source>
        <translation>保存用户集</translation>
    </message>
    <message>
        <source>User Set Save</source>
        <translation>保存用户集</translation>
    </message>
    <message>
        <source>Saves the current settings into the chosen user set.</source>
        <translation>将当前设置保存到所选用户参数集。</translation>
    </message>
    <message>
        <source>UserSetDefault</source>
        <translation>默认用户集</translation>
    </message>
    <message>
        <source>User Set Default</source>
        <translation>默认用户集</translation>
    </message>
    <message>
        <source>User set loaded when the device starts.</source>
        <translation>设备启动时加载的用户参数集。</translation>
    </message>
    <message>
        <source>UserSetDefaultSelector</source>
        <translation>默认用户集选择器</translation>
    </message>
    <message>
        <source>User Set Default Selector</source>
        <translation>默认用户集选择器</translation>
    </message>
    <message>
        <source>Chooses the user set loaded when the device starts.</source>
        <translation>选择设备启动时加载的用户参数集。</translation>
    </message>
    <message>
        <source>UserSetFeatureSelector</source>
        <translation>用户集特征选择器</translation>
    </message>
    <message>
        <source>User Set Feature Selector</source>
        <translation>用户集特征选择器</translation>
    </message>
    <message>
        <source>Chooses a feature that may be stored in the user set.</source>
        <translation>选择可保存到用户参数集的特征。</translation>
    </message>
    <message>
        <source>UserSetFeatureEnable</source>
        <translation>用户集特征使能</translation>
    </message>
    <message>
        <source>User Set Feature Enable</source>
        <translation>用户集特征使能</translation>
    </message>
    <message>
        <source>Tells whether the chosen feature is stored in the user set.</source>
        <translation>所选特征是否保存到用户参数集中。</translation>
    </message>
    <message>
        <source>SequencerControl</source>
        <translation>序列器控制</translation>
    </message>
    <message>
        <source>Sequencer Control</source>
        <translation>序列器控制</translation>
    </message>
    <message>
        <source>Category for the sequencer that switches between sets of settings.</source>
        <translation>在多组设置之间切换的序列器相关的类别。</translation>
    </message>
    <message>
        <source>SequencerMode</source>
        <translation>序列器模式</translation>
    </message>
    <message>
        <source>Sequencer Mode</source>
        <translation>序列器模式</translation>
    </message>
    <message>
        <source>Turns the sequencer on or off.</source>
        <translation>开启或关闭序列器。</translation>
    </message>
    <message>
        <source>SequencerConfigurationMode</source>
        <translation>序列器配置模式</translation>
    </message>
    <message>
        <source>Sequencer Configuration Mode</source>
        <translation>序列器配置模式</translation>
    </message>
    <message>
        <source>Turns the configuration of the sequencer on or off.</source>
        <translation>开启或关闭序列器的配置。</translation>
    </message>
    <message>
        <source>SequencerFeatureSelector</source>
        <translation>序列器特征选择器</translation>
    </message>
    <message>
        <source>Sequencer Feature Selector</source>
        <translation>序列器特征选择器</translation>
    </message>
    <message>
        <source>Chooses a feature that the sequencer sets may control.</source>
        <translation>选择序列器参数集可控制的特征。</translation>
    </message>
    <message>
        <source>SequencerFeatureEnable</source>
        <translation>序列器特征使能</translation>
    </message>
    <message>
        <source>Sequencer Feature Enable</source>
        <translation>序列器特征使能</translation>
    </message>
    <message>
        <source>Tells whether the chosen feature is part of the sequencer sets.</source>
        <translation>所选特征是否属于序列器参数集。</translation>
    </message>
    <message>
        <source>SequencerSetSelector</source>
        <translation>序列器集选择器</translation>
    </message>
    <message>
        <source>Sequencer Set Selector</source>
        <translation>序列器集选择器</translation>
    </message>
    <message>
        <source>Chooses the sequencer set the following features refer to.</source>
        <translation>选择后续特征所作用的序列器参数集。</translation>
    </message>
    <message>
        <source>SequencerSetSave</source>
        <translation>保存序列器集</translation>
    </message>
    <message>
        <source>Sequencer Set Save</source>
        <translation>保存序列器集</translation>
    </message>
    <message>
        <source>Saves the current settings into the chosen sequencer set.</source>
        <translation>将当前设置保存到所选序列器参数集。</translation>
    </message>
    <message>
        <source>SequencerSetLoad</source>
        <translation>加载序列器集</translation>
    </message>
    <message>
        <source>Sequencer Set Load</source>
        <translation>加载序列器集</translation>
    </message>
    <message>
        <source>Loads the chosen sequencer set into the current settings.</source>
        <translation>将所选序列器参数集加载到当前设置。</translation>
    </message>
    <message>
        <source>SequencerSetActive</source>
        <translation>当前序列器集</translation>
    </message>
    <message>
        <source>Sequencer Set Active</source>
        <translation>当前序列器集</translation>
    </message>
    <message>
        <source>Sequencer set that is in use now.</source>
        <translation>当前正在使用的序列器参数集。</translation>
    </message>
    <message>
        <source>SequencerSetStart</source>
        <translation>起始序列器集</translation>
    </message>
    <message>
        <source>Sequencer Set Start</source>
        <translation>起始序列器集</translation>
    </message>
    <message>
        <source>Sequencer set used first when the sequencer starts.</source>
        <translation>序列器启动时首先使用的参数集。</translation>
    </message>
    <message>
        <source>SequencerPathSelector</source>
        <translation>序列器路径选择器</translation>
    </message>
    <message>
        <source>Sequencer Path Selector</source>
        <translation>序列器路径选择器</translation>
    </message>
    <message>
        <source>Chooses the path from the chosen set to another.</source>
        <translation>选择从所选参数集通往其他参数集的路径。</translation>
    </message>
    <message>
        <source>SequencerSetNext</source>
        <translation>下一序列器集</translation>
    </message>
    <message>
        <source>Sequencer Set Next</source>
        <translation>下一序列器集</translation>
    </message>
    <message>
        <source>Set the sequencer moves to along the chosen path.</source>
        <translation>沿所选路径序列器将切换到的参数集。</translation>
    </message>
    <message>
        <source>SequencerTriggerSource</source>
        <translation>序列器触发源</translation>
    </message>
    <message>
        <source>Sequencer Trigger Source</source>
        <translation>序列器触发源</translation>
    </message>
    <message>
        <source>Signal that moves the sequencer along the chosen path.</source>
        <translation>使序列器沿所选路径切换的信号。</translation>
    </message>
    <message>
        <source>SequencerTriggerActivation</source>
        <translation>序列器触发极性</translation>
    </message>
    <message>
        <source>Sequencer Trigger Activation</source>
        <translation>序列器触发极性</translation>
    </message>
    <message>
        <source>Edge or level of the signal that moves the sequencer.</source>
        <translation>使序列器切换的信号边沿或电平。</translation>
    </message>
    <message>
        <source>FileAccessControl</source>
        <translation>文件访问控制</translation>
    </message>
    <message>
        <source>File Access Control</source>
        <translation>文件访问控制</translation>
    </message>
    <message>
        <source>Category for reading and writing files stored in the device.</source>
        <translation>读写设备中存储文件相关的类别。</translation>
    </message>
    <message>
        <source>FileSelector</source>
        <translation>文件选择器</translation>
    </message>
    <message>
        <source>File Selector</source>
        <translation>文件选择器</translation>
    </message>
    <message>
        <source>Chooses the file in the device that is accessed.</source>
        <translation>选择要访问的设备文件。</translation>
    </message>
    <message>
        <source>FileOperationSelector</source>
        <translation>文件操作选择器</translation>
    </message>
    <message>
        <source>File Operation Selector</source>
        <translation>文件操作选择器</translation>
    </message>
    <message>
        <source>Chooses the operation carried out on the file.</source>
        <translation>选择对文件执行的操作。</translation>
    </message>
    <message>
        <source>FileOperationExecute</source>
        <translation>执行文件操作</translation>
    </message>
    <message>
        <source>File Operation Execute</source>
        <translation>执行文件操作</translation>
    </message>
    <message>
        <source>Carries out the chosen operation on the chosen file.</source>
        <translation>对所选文件执行所选操作。</translation>
    </message>
    <message>
        <source>FileOpenMode</source>
        <translation>文件打开模式</translation>
    </message>
    <message>
        <source>File Open Mode</source>
        <translation>文件打开模式</translation>
    </message>
    <message>
        <source>Access mode used when the file is opened.</source>
        <translation>打开文件时使用的访问模式。</translation>
    </message>
    <message>
        <source>FileAccessBuffer</source>
        <translation>文件访问缓冲区</translation>
    </message>
    <message>
        <source>File Access Buffer</source>
        <translation>文件访问缓冲区</translation>
    </message>
    <message>
        <source>Buffer that holds the data read from or written to the file.</source>
        <translation>保存读写文件数据的缓冲区。</translation>
    </message>
    <message>
        <source>FileAccessOffset</source>
        <translation>文件访问偏移</translation>
    </message>
    <message>
        <source>File Access Offset</source>
        <translation>文件访问偏移</translation>
    </message>
    <message>
        <source>Position in the file where the operation starts, in bytes.</source>
        <translation>文件操作开始的位置，单位为字节。</translation>
    </message>
    <message>
        <source>FileAccessLength</source>
        <translation>文件访问长度</translation>
    </message>
    <message>
        <source>File Access Length</source>
        <translation>文件访问长度</translation>
    </message>
    <message>
        <source>Number of bytes the operation reads or writes.</source>
        <translation>文件操作读写的字节数。</translation>
    </message>
    <message>
        <source>FileOperationStatus</source>
        <translation>文件操作状态</translation>
    </message>
    <message>
        <source>File Operation Status</source>
        <translation>文件操作状态</translation>
    </message>
    <message>
        <source>Result of the last file operation.</source>
        <translation>最近一次文件操作的结果。</translation>
    </message>
    <message>
        <source>FileOperationResult</source>
        <translation>文件操作结果</translation>
    </message>
    <message>
        <source>File Operation Result</source>
        <translation>文件操作结果</translation>
    </message>
    <message>
        <source>Data returned by the last file operation, such as the number of bytes moved.</source>
        <translation>最近一次文件操作返回的数据，例如传输的字节数。</translation>
    </message>
    <message>
        <source>FileSize</source>
        <translation>文件大小</translation>
    </message>
    <message>
        <source>File Size</source>
        <translation>文件大小</translation>
    </message>
    <message>
        <source>Size of the chosen file, in bytes.</source>
        <translation>所选文件的大小，单位为字节。</translation>
    </message>
    <message>
        <source>ChunkDataControl</source>
        <translation>块数据控制</translation>
    </message>
    <message>
        <source>Chunk Data Control</source>
        <translation>块数据控制</translation>
    </message>
    <message>
        <source>Category for the extra data attached to each image.</source>
        <translation>附加在每帧图像上的数据相关的类别。</translation>
    </message>
    <message>
        <source>ChunkModeActive</source>
        <translation>块数据模式使能</translation>
    </message>
    <message>
        <source>Chunk Mode Active</source>
        <translation>块数据模式使能</translation>
    </message>
    <message>
        <source>Turns the attachment of extra data to images on or off.</source>
        <translation>开启或关闭在图像后附加数据。</translation>
    </message>
    <message>
        <source>ChunkSelector</source>
        <translation>块数据选择器</translation>
    </message>
    <message>
        <source>Chunk Selector</source>
        <translation>块数据选择器</translation>
    </message>
    <message>
        <source>Chooses the chunk the following features refer to.</source>
        <translation>选择后续特征所作用的数据块。</translation>
    </message>
    <message>
        <source>ChunkEnable</source>
        <translation>块数据使能</translation>
    </message>
    <message>
        <source>Chunk Enable</source>
        <translation>块数据使能</translation>
    </message>
    <message>
        <source>Attaches the chosen chunk to every image.</source>
        <translation>在每帧图像后附加所选数据块。</translation>
    </message>
    <message>
        <source>ChunkImage</source>
        <translation>图像块</translation>
    </message>
    <message>
        <source>Chunk Image</source>
        <translation>图像块</translation>
    </message>
    <message>
        <source>Image data carried in the payload.</source>
        <translation>负载中携带的图像数据。</translation>
    </message>
    <message>
        <source>ChunkOffsetX</source>
        <translation>块数据水平偏移</translation>
    </message>
    <message>
        <source>Chunk Offset X</source>
        <translation>块数据水平偏移</translation>
    </message>
    <message>
        <source>Horizontal offset of the image, as attached to it.</source>
        <translation>图像附带的水平偏移。</translation>
    </message>
    <message>
        <source>ChunkOffsetY</source>
        <translation>块数据垂直偏移</translation>
    </message>
    <message>
        <source>Chunk Offset Y</source>
        <translation>块数据垂直偏移</translation>
    </message>
    <message>
        <source>Vertical offset of the image, as attached to it.</source>
        <translation>图像附带的垂直偏移。</translation>
    </message>
    <message>
        <source>ChunkWidth</source>
        <translation>块数据宽度</translation>
    </message>
    <message>
        <source>Chunk Width</source>
        <translation>块数据宽度</translation>
    </message>
    <message>
        <source>Width of the image, as attached to it.</source>
        <translation>图像附带的宽度。</translation>
    </message>
    <message>
        <source>ChunkHeight</source>
        <translation>块数据高度</translation>
    </message>
    <message>
        <source>Chunk Height</source>
        <translation>块数据高度</translation>
    </message>
    <message>
        <source>Height of the image, as attached to it.</source>
        <translation>图像附带的高度。</translation>
    </message>
    <message>
        <source>ChunkPixelFormat</source>
        <translation>块数据像素格式</translation>
    </message>
    <message>
        <source>Chunk Pixel Format</source>
        <translation>块数据像素格式</translation>
    </message>
    <message>
        <source>Pixel format of the image, as attached to it.</source>
        <translation>图像附带的像素格式。</translation>
    </message>
    <message>
        <source>ChunkPixelDynamicRangeMin</source>
        <translation>块数据像素动态范围最小值</translation>
    </message>
    <message>
        <source>Chunk Pixel Dynamic Range Min</source>
        <translation>块数据像素动态范围最小值</translation>
    </message>
    <message>
        <source>Smallest pixel value of the image, as attached to it.</source>
        <translation>图像附带的像素最小值。</translation>
    </message>
    <message>
        <source>ChunkPixelDynamicRangeMax</source>
        <translation>块数据像素动态范围最大值</translation>
    </message>
    <message>
        <source>Chunk Pixel Dynamic Range Max</source>
        <translation>块数据像素动态范围最大值</translation>
    </message>
    <message>
        <source>Largest pixel value of the image, as attached to it.</source>
        <translation>图像附带的像素最大值。</translation>
    </message>
    <message>
        <source>ChunkTimestamp</source>
        <translation>块数据时间戳</translation>
    </message>
    <message>
        <source>Chunk Timestamp</source>
        <translation>块数据时间戳</translation>
    </message>
    <message>
        <source>Time at which the image was taken, as attached to it.</source>
        <translation>图像附带的采集时间。</translation>
    </message>
    <message>
        <source>ChunkLineStatusAll</source>
        <translation>块数据线路状态</translation>
    </message>
    <message>
        <source>Chunk Line Status All</source>
        <translation>块数据线路状态</translation>
    </message>
    <message>
        <source>Levels of all lines when the image was taken.</source>
        <translation>采集图像时所有线路的电平。</translation>
    </message>
    <message>
        <source>ChunkCounterSelector</source>
        <translation>块数据计数器选择器</translation>
    </message>
    <message>
        <source>Chunk Counter Selector</source>
        <translation>块数据计数器选择器</translation>
    </message>
    <message>
        <source>Chooses the counter whose value is attached.</source>
        <translation>选择附带其值的计数器。</translation>
    </message>
    <message>
        <source>ChunkCounterValue</source>
        <translation>块数据计数器值</translation>
    </message>
    <message>
        <source>Chunk Counter Value</source>
        <translation>块数据计数器值</translation>
    </message>
    <message>
        <source>Value of the chosen counter when the image was taken.</source>
        <translation>采集图像时所选计数器的值。</translation>
    </message>
    <message>
        <source>ChunkTimerSelector</source>
        <translation>块数据定时器选择器</translation>
    </message>
    <message>
        <source>Chunk Timer Selector</source>
        <translation>块数据定时器选择器</translation>
    </message>
    <message>
        <source>Chooses the timer whose value is attached.</source>
        <translation>选择附带其值的定时器。</translation>
    </message>
    <message>
        <source>ChunkTimerValue</source>
        <translation>块数据定时器值</translation>
    </message>
    <message>
        <source>Chunk Timer Value</source>
        <translation>块数据定时器值</translation>
    </message>
    <message>
        <source>Value of the chosen timer when the image was taken.</source>
        <translation>采集图像时所选定时器的值。</translation>
    </message>
    <message>
        <source>ChunkExposureTime</source>
        <translation>块数据曝光时间</translation>
    </message>
    <message>
        <source>Chunk Exposure Time</source>
        <translation>块数据曝光时间</translation>
    </message>
    <message>
        <source>Exposure time of the image, as attached to it.</source>
        <translation>图像附带的曝光时间。</translation>
    </message>
    <message>
        <source>ChunkGainSelector</source>
        <translation>块数据增益选择器</translation>
    </message>
    <message>
        <source>Chunk Gain Selector</source>
        <translation>块数据增益选择器</translation>
    </message>
    <message>
        <source>Chooses the gain whose value is attached.</source>
        <translation>选择附带其值的增益。</translation>
    </message>
    <message>
        <source>ChunkGain</source>
        <translation>块数据增益</translation>
    </message>
    <message>
        <source>Chunk Gain</source>
        <translation>块数据增益</translation>
    </message>
    <message>
        <source>Gain of the image, as attached to it.</source>
        <translation>图像附带的增益。</translation>
    </message>
    <message>
        <source>ChunkBlackLevel</source>
        <translation>块数据黑电平</translation>
    </message>
    <message>
        <source>Chunk Black Level</source>
        <translation>块数据黑电平</translation>
    </message>
    <message>
        <source>Black level of the image, as attached to it.</source>
        <translation>图像附带的黑电平。</translation>
    </message>
    <message>
        <source>ChunkFrameID</source>
        <translation>块数据帧号</translation>
    </message>
    <message>
        <source>Chunk Frame ID</source>
        <translation>块数据帧号</translation>
    </message>
    <message>
        <source>Number of the frame, as attached to it.</source>
        <translation>图像附带的帧号。</translation>
    </message>
    <message>
        <source>ChunkSequencerSetActive</source>
        <translation>块数据序列器集</translation>
    </message>
    <message>
        <source>Chunk Sequencer Set Active</source>
        <translation>块数据序列器集</translation>
    </message>
    <message>
        <source>Sequencer set in use when the image was taken.</source>
        <translation>采集图像时使用的序列器参数集。</translation>
    </message>
    <message>
        <source>ChunkEncoderValue</source>
        <translation>块数据编码器值</translation>
    </message>
    <message>
        <source>Chunk Encoder Value</source>
        <translation>块数据编码器值</translation>
    </message>
    <message>
        <source>Encoder position when the image was taken.</source>
        <translation>采集图像时的编码器位置。</translation>
    </message>
    <message>
        <source>TransportLayerControl</source>
        <translation>传输层控制</translation>
    </message>
    <message>
        <source>Transport Layer Control</source>
        <translation>传输层控制</translation>
    </message>
    <message>
        <source>Category for the transport layer of the device.</source>
        <translation>设备传输层相关的类别。</translation>
    </message>
    <message>
        <source>PayloadSize</source>
        <translation>负载大小</translation>
    </message>
    <message>
        <source>Payload Size</source>
        <translation>负载大小</translation>
    </message>
    <message>
        <source>Number of bytes each image transfer carries.</source>
        <translation>每次图像传输携带的字节数。</translation>
    </message>
    <message>
        <source>GevVersionMajor</source>
        <translation>GEV主版本号</translation>
    </message>
    <message>
        <source>GEV Version Major</source>
        <translation>GEV主版本号</translation>
    </message>
    <message>
        <source>Major version of the GigE Vision protocol the device follows.</source>
        <translation>设备遵循的 GigE Vision 协议主版本号。</translation>
    </message>
    <message>
        <source>GevVersionMinor</source>
        <translation>GEV次版本号</translation>
    </message>
    <message>
        <source>GEV Version Minor</source>
        <translation>GEV次版本号</translation>
    </message>
    <message>
        <source>Minor version of the GigE Vision protocol the device follows.</source>
        <translation>设备遵循的 GigE Vision 协议次版本号。</translation>
    </message>
    <message>
        <source>GevDeviceModeIsBigEndian</source>
        <translation>设备大端模式</translation>
    </message>
    <message>
        <source>GEV Device Mode Is Big Endian</source>
        <translation>设备大端模式</translation>
    </message>
    <message>
        <source>Tells whether the registers of the device are big endian.</source>
        <translation>设备寄存器是否为大端字节序。</translation>
    </message>
    <message>
        <source>GevDeviceModeCharacterSet</source>
        <translation>设备模式字符集</translation>
    </message>
    <message>
        <source>GEV Device Mode Character Set</source>
        <translation>设备模式字符集</translation>
    </message>
    <message>
        <source>Character set of the text registers of the device.</source>
        <translation>设备字符串寄存器使用的字符集。</translation>
    </message>
    <message>
        <source>GevInterfaceSelector</source>
        <translation>网络接口选择器</translation>
    </message>
    <message>
        <source>GEV Interface Selector</source>
        <translation>网络接口选择器</translation>
    </message>
    <message>
        <source>Chooses the network interface the following features refer to.</source>
        <translation>选择后续特征所作用的网络接口。</translation>
    </message>
    <message>
        <source>GevMACAddress</source>
        <translation>MAC地址</translation>
    </message>
    <message>
        <source>GEV MAC Address</source>
        <translation>MAC地址</translation>
    </message>
    <message>
        <source>MAC address of the chosen network interface.</source>
        <translation>所选网络接口的 MAC 地址。</translation>
    </message>
    <message>
        <source>GevSupportedOptionSelector</source>
        <translation>支持选项选择器</translation>
    </message>
    <message>
        <source>GEV Supported Option Selector</source>
        <translation>支持选项选择器</translation>
    </message>
    <message>
        <source>Chooses the protocol option whose support is shown.</source>
        <translation>选择要显示支持情况的协议选项。</translation>
    </message>
    <message>
        <source>GevSupportedOption</source>
        <translation>选项是否支持</translation>
    </message>
    <message>
        <source>GEV Supported Option</source>
        <translation>选项是否支持</translation>
    </message>
    <message>
        <source>Tells whether the device supports the chosen option.</source>
        <translation>设备是否支持所选选项。</translation>
    </message>
    <message>
        <source>GevSupportedIPConfigurationLLA</source>
        <translation>支持LLA</translation>
    </message>
    <message>
        <source>GEV Supported IP Configuration LLA</source>
        <translation>支持LLA</translation>
    </message>
    <message>
        <source>Tells whether the interface can take a link-local address.</source>
        <translation>网络接口是否支持链路本地地址。</translation>
    </message>
    <message>
        <source>GevSupportedIPConfigurationDHCP</source>
        <translation>支持DHCP</translation>
    </message>
    <message>
        <source>GEV Supported IP Configuration DHCP</source>
        <translation>支持DHCP</translation>
    </message>
    <message>
        <source>Tells whether the interface can take an address from DHCP.</source>
        <translation>网络接口是否支持通过 DHCP 获取地址。</translation>
    </message>
    <message>
        <source>GevSupportedIPConfigurationPersistentIP</source>
        <translation>支持静态IP</translation>
    </message>
    <message>
        <source>GEV Supported IP Configuration Persistent IP</source>
        <translation>支持静态IP</translation>
    </message>
    <message>
        <source>Tells whether the interface can keep a fixed address.</source>
        <translation>网络接口是否支持固定地址。</translation>
    </message>
    <message>
        <source>GevCurrentIPConfigurationLLA</source>
        <translation>LLA使能</translation>
    </message>
    <message>
        <source>GEV Current IP Configuration LLA</source>
        <translation>LLA使能</translation>
    </message>
    <message>
        <source>Lets the interface take a link-local address.</source>
        <translation>允许网络接口使用链路本地地址。</translation>
    </message>
    <message>
        <source>GevCurrentIPConfigurationDHCP</source>
        <translation>DHCP使能</translation>
    </message>
    <message>
        <source>GEV Current IP Configuration DHCP</source>
        <translation>DHCP使能</translation>
    </message>
    <message>
        <source>Lets the interface take an address from DHCP.</source>
        <translation>允许网络接口通过 DHCP 获取地址。</translation>
    </message>
    <message>
        <source>GevCurrentIPConfigurationPersistentIP</source>
        <translation>静态IP使能</translation>
    </message>
    <message>
        <source>GEV Current IP Configuration Persistent IP</source>
        <translation>静态IP使能</translation>
    </message>
    <message>
        <source>Lets the interface use the fixed address stored in the device.</source>
        <translation>允许网络接口使用设备中保存的固定地址。</translation>
    </message>
    <message>
        <source>GevIPConfiguration</source>
        <translation>IP配置方式</translation>
    </message>
    <message>
        <source>GEV IP Configuration</source>
        <translation>IP配置方式</translation>
    </message>
    <message>
        <source>Way the device obtains its IP address.</source>
        <translation>设备获取 IP 地址的方式。</translation>
    </message>
    <message>
        <source>GevIPConfigurationStatus</source>
        <translation>IP配置状态</translation>
    </message>
    <message>
        <source>GEV IP Configuration Status</source>
        <translation>IP配置状态</translation>
    </message>
    <message>
        <source>Way the device obtained its current IP address.</source>
        <translation>设备获取当前 IP 地址的方式。</translation>
    </message>
    <message>
        <source>GevCurrentIPAddress</source>
        <translation>当前IP地址</translation>
    </message>
    <message>
        <source>GEV Current IP Address</source>
        <translation>当前IP地址</translation>
    </message>
    <message>
        <source>IP address the chosen interface uses now.</source>
        <translation>所选网络接口当前使用的 IP 地址。</translation>
    </message>
    <message>
        <source>GevCurrentSubnetMask</source>
        <translation>当前子网掩码</translation>
    </message>
    <message>
        <source>GEV Current Subnet Mask</source>
        <translation>当前子网掩码</translation>
    </message>
    <message>
        <source>Subnet mask the chosen interface uses now.</source>
        <translation>所选网络接口当前使用的子网掩码。</translation>
    </message>
    <message>
        <source>GevCurrentDefaultGateway</source>
        <translation>当前默认网关</translation>
    </message>
    <message>
        <source>GEV Current Default Gateway</source>
        <translation>当前默认网关</translation>
    </message>
    <message>
        <source>Default gateway the chosen interface uses now.</source>
        <translation>所选网络接口当前使用的默认网关。</translation>
    </message>
    <message>
        <source>GevFirstURL</source>
        <translation>第一URL</translation>
    </message>
    <message>
        <source>GEV First URL</source>
        <translation>第一URL</translation>
    </message>
    <message>
        <source>First location of the description file of the device.</source>
        <translation>设备描述文件的首选位置。</translation>
    </message>
    <message>
        <source>GevSecondURL</source>
        <translation>第二URL</translation>
    </message>
    <message>
        <source>GEV Second URL</source>
        <translation>第二URL</translation>
    </message>
    <message>
        <source>Second location of the description file of the device.</source>
        <translation>设备描述文件的备用位置。</translation>
    </message>
    <message>
        <source>GevNumberOfInterfaces</source>
        <translation>网络接口数</translation>
    </message>
    <message>
        <source>GEV Number Of Interfaces</source>
        <translation>网络接口数</translation>
    </message>
    <message>
        <source>Number of network interfaces of the device.</source>
        <translation>设备网络接口的数量。</translation>
    </message>
    <message>
        <source>GevPersistentIPAddress</source>
        <translation>静态IP地址</translation>
    </message>
    <message>
        <source>GEV Persistent IP Address</source>
        <translation>静态IP地址</translation>
    </message>
    <message>
        <source>Fixed IP address stored in the device.</source>
        <translation>设备中保存的固定 IP 地址。</translation>
    </message>
    <message>
        <source>GevPersistentSubnetMask</source>
        <translation>静态子网掩码</translation>
    </message>
    <message>
        <source>GEV Persistent Subnet Mask</source>
        <translation>静态子网掩码</translation>
    </message>
    <message>
        <source>Fixed subnet mask stored in the device.</source>
        <translation>设备中保存的固定子网掩码。</translation>
    </message>
    <message>
        <source>GevPersistentDefaultGateway</source>
        <translation>静态默认网关</translation>
    </message>
    <message>
        <source>GEV Persistent Default Gateway</source>
        <translation>静态默认网关</translation>
    </message>
    <message>
        <source>Fixed default gateway stored in the device.</source>
        <translation>设备中保存的固定默认网关。</translation>
    </message>
    <message>
        <source>GevLinkSpeed</source>
        <translation>链路速率</translation>
    </message>
    <message>
        <source>GEV Link Speed</source>
        <translation>链路速率</translation>
    </message>
    <message>
        <source>Speed of the chosen network link, in megabits per second.</source>
        <translation>所选网络链路的速率，单位为兆比特每秒。</translation>
    </message>
    <message>
        <source>GevMessageChannelCount</source>
        <translation>消息通道数</translation>
    </message>
    <message>
        <source>GEV Message Channel Count</source>
        <translation>消息通道数</translation>
    </message>
    <message>
        <source>Number of message channels of the device.</source>
        <translation>设备消息通道的数量。</translation>
    </message>
    <message>
        <source>GevStreamChannelCount</source>
        <translation>GEV流通道数</translation>
    </message>
    <message>
        <source>GEV Stream Channel Count</source>
        <translation>GEV流通道数</translation>
    </message>
    <message>
        <source>Number of stream channels of the device.</source>
        <translation>设备流通道的数量。</translation>
    </message>
    <message>
        <source>GevHeartbeatTimeout</source>
        <translation>心跳超时</translation>
    </message>
    <message>
        <source>GEV Heartbeat Timeout</source>
        <translation>心跳超时</translation>
    </message>
    <message>
        <source>Time after which the device drops a silent application, in milliseconds.</source>
        <translation>应用程序无响应多久后设备断开连接，单位为毫秒。</translation>
    </message>
    <message>
        <source>GevGVCPHeartbeatDisable</source>
        <translation>禁用心跳</translation>
    </message>
    <message>
        <source>GEV GVCP Heartbeat Disable</source>
        <translation>禁用心跳</translation>
    </message>
    <message>
        <source>Turns the heartbeat check of the control channel off.</source>
        <translation>关闭控制通道的心跳检查。</translation>
    </message>
    <message>
        <source>GevGVCPPendingAck</source>
        <translation>等待应答</translation>
    </message>
    <message>
        <source>GEV GVCP Pending Ack</source>
        <translation>等待应答</translation>
    </message>
    <message>
        <source>Lets the device ask for more time on slow commands.</source>
        <translation>允许设备在慢速命令上请求更多时间。</translation>
    </message>
    <message>
        <source>GevGVCPPendingTimeout</source>
        <translation>等待应答超时</translation>
    </message>
    <message>
        <source>GEV GVCP Pending Timeout</source>
        <translation>等待应答超时</translation>
    </message>
    <message>
        <source>Longest time a command may take when more time is asked for, in milliseconds.</source>
        <translation>请求更多时间时命令所允许的最长时间，单位为毫秒。</translation>
    </message>
    <message>
        <source>GevGVCPExtendedStatusCodes</source>
        <translation>扩展状态码</translation>
    </message>
    <message>
        <source>GEV GVCP Extended Status Codes</source>
        <translation>扩展状态码</translation>
    </message>
    <message>
        <source>Lets the device return the extended status codes.</source>
        <translation>允许设备返回扩展状态码。</translation>
    </message>
    <message>
        <source>GevPrimaryApplicationSocket</source>
        <translation>主控应用端口</translation>
    </message>
    <message>
        <source>GEV Primary Application Socket</source>
        <translation>主控应用端口</translation>
    </message>
    <message>
        <source>UDP port of the application that controls the device.</source>
        <translation>控制设备的应用程序的 UDP 端口。</translation>
    </message>
    <message>
        <source>GevPrimaryApplicationIPAddress</source>
        <translation>主控应用IP地址</translation>
    </message>
    <message>
        <source>GEV Primary Application IP Address</source>
        <translation>主控应用IP地址</translation>
    </message>
    <message>
        <source>IP address of the application that controls the device.</source>
        <translation>控制设备的应用程序的 IP 地址。</translation>
    </message>
    <message>
        <source>GevPrimaryApplicationSwitchoverKey</source>
        <translation>主控切换密钥</translation>
    </message>
    <message>
        <source>GEV Primary Application Switchover Key</source>
        <translation>主控切换密钥</translation>
    </message>
    <message>
        <source>Key needed to take over control from the current application.</source>
        <translation>从当前应用接管控制权所需的密钥。</translation>
    </message>
    <message>
        <source>GevTimestampTickFrequency</source>
        <translation>时间戳频率</translation>
    </message>
    <message>
        <source>GEV Timestamp Tick Frequency</source>
        <translation>时间戳频率</translation>
    </message>
    <message>
        <source>Frequency of the timestamp counter, in hertz.</source>
        <translation>时间戳计数器的频率，单位为赫兹。</translation>
    </message>
    <message>
        <source>GevTimestampTickFrequencyHigh</source>
        <translation>时间戳频率高位</translation>
    </message>
    <message>
        <source>GEV Timestamp Tick Frequency High</source>
        <translation>时间戳频率高位</translation>
    </message>
    <message>
        <source>Upper 32 bits of the timestamp counter frequency.</source>
        <translation>时间戳计数器频率的高32位。</translation>
    </message>
    <message>
        <source>GevTimestampTickFrequencyLow</source>
        <translation>时间戳频率低位</translation>
    </message>
    <message>
        <source>GEV Timestamp Tick Frequency Low</source>
        <translation>时间戳频率低位</translation>
    </message>
    <message>
        <source>Lower 32 bits of the timestamp counter frequency.</source>
        <translation>时间戳计数器频率的低32位。</translation>
    </message>
    <message>
        <source>GevTimestampControlLatch</source>
        <translation>锁存时间戳</translation>
    </message>
    <message>
        <source>GEV Timestamp Control Latch</source>
        <translation>锁存时间戳</translation>
    </message>
    <message>
        <source>Copies the current timestamp into the timestamp value.</source>
        <translation>将当前时间戳复制到时间戳值中。</translation>
    </message>
    <message>
        <source>GevTimestampControlReset</source>
        <translation>复位时间戳</translation>
    </message>
    <message>
        <source>GEV Timestamp Control Reset</source>
        <translation>复位时间戳</translation>
    </message>
    <message>
        <source>Sets the timestamp counter back to zero.</source>
        <translation>将时间戳计数器清零。</translation>
    </message>
    <message>
        <source>GevTimestampValue</source>
        <translation>时间戳值</translation>
    </message>
    <message>
        <source>GEV Timestamp Value</source>
        <translation>时间戳值</translation>
    </message>
    <message>
        <source>Timestamp captured by the last latch.</source>
        <translation>最近一次锁存的时间戳。</translation>
    </message>
    <message>
        <source>GevCCP</source>
        <translation>控制通道权限</translation>
    </message>
    <message>
        <source>GEV CCP</source>
        <translation>控制通道权限</translation>
    </message>
    <message>
        <source>Access the application holds on the control channel.</source>
        <translation>应用程序对控制通道拥有的访问权限。</translation>
    </message>
    <message>
        <source>GevMCPHostPort</source>
        <translation>消息通道主机端口</translation>
    </message>
    <message>
        <source>GEV MCP Host Port</source>
        <translation>消息通道主机端口</translation>
    </message>
    <message>
        <source>Port of the host that receives the messages of the device.</source>
        <translation>接收设备消息的主机端口。</translation>
    </message>
    <message>
        <source>GevMCDA</source>
        <translation>消息通道目标地址</translation>
    </message>
    <message>
        <source>GEV MCDA</source>
        <translation>消息通道目标地址</translation>
    </message>
    <message>
        <source>IP address that receives the messages of the device.</source>
        <translation>接收设备消息的 IP 地址。</translation>
    </message>
    <message>
        <source>GevMCTT</source>
        <translation>消息通道传输超时</translation>
    </message>
    <message>
        <source>GEV MCTT</source>
        <translation>消息通道传输超时</translation>
    </message>
    <message>
        <source>Time the device waits for a message to be acknowledged, in milliseconds.</source>
        <translation>设备等待消息应答的时间，单位为毫秒。</translation>
    </message>
    <message>
        <source>GevMCRC</source>
        <translation>消息通道重传次数</translation>
    </message>
    <message>
        <source>GEV MCRC</source>
        <translation>消息通道重传次数</translation>
    </message>
    <message>
        <source>Number of times a message is sent again when it is not acknowledged.</source>
        <translation>消息未被应答时重发的次数。</translation>
    </message>
    <message>
        <source>GevMCSP</source>
        <translation>消息通道源端口</translation>
    </message>
    <message>
        <source>GEV MCSP</source>
        <translation>消息通道源端口</translation>
    </message>
    <message>
        <source>Port of the device that sends the messages.</source>
        <translation>设备发送消息所用的端口。</translation>
    </message>
    <message>
        <source>GevStreamChannelSelector</source>
        <translation>GEV流通道选择器</translation>
    </message>
    <message>
        <source>GEV Stream Channel Selector</source>
        <translation>GEV流通道选择器</translation>
    </message>
    <message>
        <source>GevSCCFGPacketResendDestination</source>
        <translation>重传包目标</translation>
    </message>
    <message>
        <source>GEV SCCFG Packet Resend Destination</source>
        <translation>重传包目标</translation>
    </message>
    <message>
        <source>Sends resent packets to the address that asked for them.</source>
        <translation>将重传数据包发送到请求重传的地址。</translation>
    </message>
    <message>
        <source>GevSCCFGAllInTransmission</source>
        <translation>整体传输模式</translation>
    </message>
    <message>
        <source>GEV SCCFG All In Transmission</source>
        <translation>整体传输模式</translation>
    </message>
    <message>
        <source>Sends the leader, payload and trailer of a block in one transmission.</source>
        <translation>在一次传输中发送数据块的头、负载和尾。</translation>
    </message>
    <message>
        <source>GevSCCFGUnconditionalStreaming</source>
        <translation>无条件流传输</translation>
    </message>
    <message>
        <source>GEV SCCFG Unconditional Streaming</source>
        <translation>无条件流传输</translation>
    </message>
    <message>
        <source>Keeps streaming even when the control channel is closed.</source>
        <translation>控制通道关闭时仍继续传输数据流。</translation>
    </message>
    <message>
        <source>GevSCCFGExtendedChunkData</source>
        <translation>扩展块数据</translation>
    </message>
    <message>
        <source>GEV SCCFG Extended Chunk Data</source>
        <translation>扩展块数据</translation>
    </message>
    <message>
        <source>Uses the extended chunk data layout on the stream channel.</source>
        <translation>在流通道上使用扩展块数据格式。</translation>
    </message>
    <message>
        <source>GevSCCFGMultiZone</source>
        <translation>多区域传输</translation>
    </message>
    <message>
        <source>GEV SCCFG Multi Zone</source>
        <translation>多区域传输</translation>
    </message>
    <message>
        <source>Splits each image into several zones on the stream channel.</source>
        <translation>在流通道上将每帧图像分为多个区域传输。</translation>
    </message>
    <message>
        <source>GevSCPInterfaceIndex</source>
        <translation>流通道接口索引</translation>
    </message>
    <message>
        <source>GEV SCP Interface Index</source>
        <translation>流通道接口索引</translation>
    </message>
    <message>
        <source>Network interface used by the chosen stream channel.</source>
        <translation>所选流通道使用的网络接口。</translation>
    </message>
    <message>
        <source>GevSCPHostPort</source>
        <translation>流通道主机端口</translation>
    </message>
    <message>
        <source>GEV SCP Host Port</source>
        <translation>流通道主机端口</translation>
    </message>
    <message>
        <source>Port of the host that receives the stream.</source>
        <translation>接收数据流的主机端口。</translation>
    </message>
    <message>
        <source>GevSCPSFireTestPacket</source>
        <translation>发送测试包</translation>
    </message>
    <message>
        <source>GEV SCPS Fire Test Packet</source>
        <translation>发送测试包</translation>
    </message>
    <message>
        <source>Sends one test packet on the chosen stream channel.</source>
        <translation>在所选流通道上发送一个测试数据包。</translation>
    </message>
    <message>
        <source>GevSCPSDoNotFragment</source>
        <translation>禁止分片</translation>
    </message>
    <message>
        <source>GEV SCPS Do Not Fragment</source>
        <translation>禁止分片</translation>
    </message>
    <message>
        <source>Forbids the network to split the stream packets.</source>
        <translation>禁止网络对流数据包进行分片。</translation>
    </message>
    <message>
        <source>GevSCPSBigEndian</source>
        <translation>大端流数据</translation>
    </message>
    <message>
        <source>GEV SCPS Big Endian</source>
        <translation>大端流数据</translation>
    </message>
    <message>
        <source>Sends the stream data in big-endian byte order.</source>
        <translation>以大端字节序发送流数据。</translation>
    </message>
    <message>
        <source>GevSCPSPacketSize</source>
        <translation>流包大小</translation>
    </message>
    <message>
        <source>GEV SCPS Packet Size</source>
        <translation>流包大小</translation>
    </message>
    <message>
        <source>Size of the stream packets, in bytes.</source>
        <translation>流数据包的大小，单位为字节。</translation>
    </message>
    <message>
        <source>GevSCPD</source>
        <translation>包间延迟</translation>
    </message>
    <message>
        <source>GEV SCPD</source>
        <translation>包间延迟</translation>
    </message>
    <message>
        <source>Delay between two stream packets, in timestamp ticks.</source>
        <translation>两个流数据包之间的延迟，单位为时间戳周期。</translation>
    </message>
    <message>
        <source>GevSCDA</source>
        <translation>流目标地址</translation>
    </message>
    <message>
        <source>GEV SCDA</source>
        <translation>流目标地址</translation>
    </message>
    <message>
        <source>IP address that receives the stream.</source>
        <translation>接收数据流的 IP 地址。</translation>
    </message>
    <message>
        <source>GevSCSP</source>
        <translation>流源端口</translation>
    </message>
    <message>
        <source>GEV SCSP</source>
        <translation>流源端口</translation>
    </message>
    <message>
        <source>Port of the device that sends the stream.</source>
        <translation>设备发送数据流所用的端口。</translation>
    </message>
    <message>
        <source>GevCurrentPhysicalLinkConfiguration</source>
        <translation>当前物理链路配置</translation>
    </message>
    <message>
        <source>GEV Current Physical Link Configuration</source>
        <translation>当前物理链路配置</translation>
    </message>
    <message>
        <source>Way the network links of the device are used now.</source>
        <translation>设备网络链路当前的使用方式。</translation>
    </message>
    <message>
        <source>GevPhysicalLinkConfiguration</source>
        <translation>物理链路配置</translation>
    </message>
    <message>
        <source>GEV Physical Link Configuration</source>
        <translation>物理链路配置</translation>
    </message>
    <message>
        <source>Way the network links of the device are to be used.</source>
        <translation>设备网络链路要采用的使用方式。</translation>
    </message>
    <message>
        <source>GevActiveLinkCount</source>
        <translation>活动链路数</translation>
    </message>
    <message>
        <source>GEV Active Link Count</source>
        <translation>活动链路数</translation>
    </message>
    <message>
        <source>Number of network links in use.</source>
        <translation>正在使用的网络链路数量。</translation>
    </message>
    <message>
        <source>GevPAUSEFrameReception</source>
        <translation>接收PAUSE帧</translation>
    </message>
    <message>
        <source>GEV PAUSE Frame Reception</source>
        <translation>接收PAUSE帧</translation>
    </message>
    <message>
        <source>Lets the device obey flow-control pause frames.</source>
        <translation>允许设备响应流控暂停帧。</translation>
    </message>
    <message>
        <source>GevPAUSEFrameTransmission</source>
        <translation>发送PAUSE帧</translation>
    </message>
    <message>
        <source>GEV PAUSE Frame Transmission</source>
        <translation>发送PAUSE帧</translation>
    </message>
    <message>
        <source>Lets the device send flow-control pause frames.</source>
        <translation>允许设备发送流控暂停帧。</translation>
    </message>
    <message>
        <source>GevDiscoveryAckDelay</source>
        <translation>发现应答延迟</translation>
    </message>
    <message>
        <source>GEV Discovery Ack Delay</source>
        <translation>发现应答延迟</translation>
    </message>
    <message>
        <source>Longest delay before the device answers a discovery, in milliseconds.</source>
        <translation>设备应答发现请求前的最长延迟，单位为毫秒。</translation>
    </message>
    <message>
        <source>PtpEnable</source>
        <translation>PTP使能</translation>
    </message>
    <message>
        <source>PTP Enable</source>
        <translation>PTP使能</translation>
    </message>
    <message>
        <source>Turns clock synchronisation over the network on or off.</source>
        <translation>开启或关闭网络时钟同步。</translation>
    </message>
    <message>
        <source>PtpStatus</source>
        <translation>PTP状态</translation>
    </message>
    <message>
        <source>PTP Status</source>
        <translation>PTP状态</translation>
    </message>
    <message>
        <source>Role of the device clock in the synchronisation.</source>
        <translation>设备时钟在同步中的角色。</translation>
    </message>
    <message>
        <source>PtpClockAccuracy</source>
        <translation>PTP时钟精度</translation>
    </message>
    <message>
        <source>PTP Clock Accuracy</source>
        <translation>PTP时钟精度</translation>
    </message>
    <message>
        <source>Expected accuracy of the device clock.</source>
        <translation>设备时钟的预期精度。</translation>
    </message>
    <message>
        <source>PtpDataSetLatch</source>
        <translation>PTP数据锁存</translation>
    </message>
    <message>
        <source>PTP Data Set Latch</source>
        <translation>PTP数据锁存</translation>
    </message>
    <message>
        <source>Copies the current synchronisation data so it can be read.</source>
        <translation>锁存当前同步数据以便读取。</translation>
    </message>
    <message>
        <source>PtpOffsetFromMaster</source>
        <translation>与主时钟偏差</translation>
    </message>
    <message>
        <source>PTP Offset From Master</source>
        <translation>与主时钟偏差</translation>
    </message>
    <message>
        <source>Difference between the device clock and the master clock, in nanoseconds.</source>
        <translation>设备时钟与主时钟的差值，单位为纳秒。</translation>
    </message>
    <message>
        <source>PtpClockID</source>
        <translation>PTP时钟标识</translation>
    </message>
    <message>
        <source>PTP Clock ID</source>
        <translation>PTP时钟标识</translation>
    </message>
    <message>
        <source>Identifier of the device clock.</source>
        <translation>设备时钟的标识。</translation>
    </message>
    <message>
        <source>PtpParentClockID</source>
        <translation>PTP父时钟标识</translation>
    </message>
    <message>
        <source>PTP Parent Clock ID</source>
        <translation>PTP父时钟标识</translation>
    </message>
    <message>
        <source>Identifier of the clock the device follows.</source>
        <translation>设备所跟随时钟的标识。</translation>
    </message>
    <message>
        <source>PtpGrandmasterClockID</source>
        <translation>PTP主时钟标识</translation>
    </message>
    <message>
        <source>PTP Grandmaster Clock ID</source>
        <translation>PTP主时钟标识</translation>
    </message>
    <message>
        <source>Identifier of the top clock of the network.</source>
        <translation>网络中最高级时钟的标识。</translation>
    </message>
    <message>
        <source>PtpServoStatus</source>
        <translation>PTP伺服状态</translation>
    </message>
    <message>
        <source>PTP Servo Status</source>
        <translation>PTP伺服状态</translation>
    </message>
    <message>
        <source>State of the clock adjustment loop.</source>
        <translation>时钟调节回路的状态。</translation>
    </message>
    <message>
        <source>StreamChannel0PacketResendDestination</source>
        <translation>流通道0重传包目标</translation>
    </message>
    <message>
        <source>Stream Channel 0 Packet Resend Destination</source>
        <translation>流通道0重传包目标</translation>
    </message>
    <message>
        <source>Sends the resent packets of stream channel 0 to the address that asked for them.</source>
        <translation>将流通道0的重传数据包发送到请求重传的地址。</translation>
    </message>
    <message>
        <source>StreamChannel0ExtendedChunkData</source>
        <translation>流通道0扩展块数据</translation>
    </message>
    <message>
        <source>Stream Channel 0 Extended Chunk Data</source>
        <translation>流通道0扩展块数据</translation>
    </message>
    <message>
        <source>Uses the extended chunk data layout on stream channel 0.</source>
        <translation>在流通道0上使用扩展块数据格式。</translation>
    </message>
    <message>
        <source>StreamChannel0MultiZone</source>
        <translation>流通道0多区域传输</translation>
    </message>
    <message>
        <source>Stream Channel 0 Multi Zone</source>
        <translation>流通道0多区域传输</translation>
    </message>
    <message>
        <source>Splits each image into several zones on stream channel 0.</source>
        <translation>在流通道0上将每帧图像分为多个区域传输。</translation>
    </message>
    <message>
        <source>StreamChannel1PacketResendDestination</source>
        <translation>流通道1重传包目标</translation>
    </message>
    <message>
        <source>Stream Channel 1 Packet Resend Destination</source>
        <translation>流通道1重传包目标</translation>
    </message>
    <message>
        <source>Sends the resent packets of stream channel 1 to the address that asked for them.</source>
        <translation>将流通道1的重传数据包发送到请求重传的地址。</translation>
    </message>
    <message>
        <source>StreamChannel1ExtendedChunkData</source>
        <translation>流通道1扩展块数据</translation>
    </message>
    <message>
        <source>Stream Channel 1 Extended Chunk Data</source>
        <translation>流通道1扩展块数据</translation>
    </message>
    <message>
        <source>Uses the extended chunk data layout on stream channel 1.</source>
        <translation>在流通道1上使用扩展块数据格式。</translation>
    </message>
    <message>
        <source>StreamChannel1MultiZone</source>
        <translation>流通道1多区域传输</translation>
    </message>
    <message>
        <source>Stream Channel 1 Multi Zone</source>
        <translation>流通道1多区域传输</translation>
    </message>
    <message>
        <source>Splits each image into several zones on stream channel 1.</source>
        <translation>在流通道1上将每帧图像分为多个区域传输。</translation>
    </message>
    <message>
        <source>StreamChannel2PacketResendDestination</source>
        <translation>流通道2重传包目标</translation>
    </message>
    <message>
        <source>Stream Channel 2 Packet Resend Destination</source>
        <translation>流通道2重传包目标</translation>
    </message>
    <message>
        <source>Sends the resent packets of stream channel 2 to the address that asked for them.</source>
        <translation>将流通道2的重传数据包发送到请求重传的地址。</translation>
    </message>
    <message>
        <source>StreamChannel2ExtendedChunkData</source>
        <translation>流通道2扩展块数据</translation>
    </message>
    <message>
        <source>Stream Channel 2 Extended Chunk Data</source>
        <translation>流通道2扩展块数据</translation>
    </message>
    <message>
        <source>Uses the extended chunk data layout on stream channel 2.</source>
        <translation>在流通道2上使用扩展块数据格式。</translation>
    </message>
    <message>
        <source>StreamChannel2MultiZone</source>
        <translation>流通道2多区域传输</translation>
    </message>
    <message>
        <source>Stream Channel 2 Multi Zone</source>
        <translation>流通道2多区域传输</translation>
    </message>
    <message>
        <source>Splits each image into several zones on stream channel 2.</source>
        <translation>在流通道2上将每帧图像分为多个区域传输。</translation>
    </message>
    <message>
        <source>StreamChannel3PacketResendDestination</source>
        <translation>流通道3重传包目标</translation>
    </message>
    <message>
        <source>Stream Channel 3 Packet Resend Destination</source>
        <translation>流通道3重传包目标</translation>
    </message>
    <message>
        <source>Sends the resent packets of stream channel 3 to the address that asked for them.</source>
        <translation>将流通道3的重传数据包发送到请求重传的地址。</translation>
    </message>
    <message>
        <source>StreamChannel3ExtendedChunkData</source>
        <translation>流通道3扩展块数据</translation>
    </message>
    <message>
        <source>Stream Channel 3 Extended Chunk Data</source>
        <translation>流通道3扩展块数据</translation>
    </message>
    <message>
        <source>Uses the extended chunk data layout on stream channel 3.</source>
        <translation>在流通道3上使用扩展块数据格式。</translation>
    </message>
    <message>
        <source>StreamChannel3MultiZone</source>
        <translation>流通道3多区域传输</translation>
    </message>
    <message>
        <source>Stream Channel 3 Multi Zone</source>
        <translation>流通道3多区域传输</translation>
    </message>
    <message>
        <source>Splits each image into several zones on stream channel 3.</source>
        <translation>在流通道3上将每帧图像分为多个区域传输。</translation>
    </message>
    <message>
        <source>StreamChannel4PacketResendDestination</source>
        <translation>流通道4重传包目标</translation>
    </message>
    <message>
        <source>Stream Channel 4 Packet Resend Destination</source>
        <translation>流通道4重传包目标</translation>
    </message>
    <message>
        <source>Sends the resent packets of stream channel 4 to the address that asked for them.</source>
        <translation>将流通道4的重传数据包发送到请求重传的地址。</translation>
    </message>
    <message>
        <source>StreamChannel4ExtendedChunkData</source>
        <translation>流通道4扩展块数据</translation>
    </message>
    <message>
        <source>Stream Channel 4 Extended Chunk Data</source>
        <translation>流通道4扩展块数据</translation>
    </message>
    <message>
        <source>Uses the extended chunk data layout on stream channel 4.</source>
        <translation>在流通道4上使用扩展块数据格式。</translation>
    </message>
    <message>
        <source>StreamChannel4MultiZone</source>
        <translation>流通道4多区域传输</translation>
    </message>
    <message>
        <source>Stream Channel 4 Multi Zone</source>
        <translation>流通道4多区域传输</translation>
    </message>
    <message>
        <source>Splits each image into several zones on stream channel 4.</source>
        <translation>在流通道4上将每帧图像分为多个区域传输。</translation>
    </message>
    <message>
        <source>StreamChannel5PacketResendDestination</source>
        <translation>流通道5重传包目标</translation>
    </message>
    <message>
        <source>Stream Channel 5 Packet Resend Destination</source>
        <translation>流通道5重传包目标</translation>
    </message>
    <message>
        <source>Sends the resent packets of stream channel 5 to the address that asked for them.</source>
        <translation>将流通道5的重传数据包发送到请求重传的地址。</translation>
    </message>
    <message>
        <source>StreamChannel5ExtendedChunkData</source>
        <translation>流通道5扩展块数据</translation>
    </message>
    <message>
        <source>Stream Channel 5 Extended Chunk Data</source>
        <translation>流通道5扩展块数据</translation>
    </message>
    <message>
        <source>Uses the extended chunk data layout on stream channel 5.</source>
        <translation>在流通道5上使用扩展块数据格式。</translation>
    </message>
    <message>
        <source>StreamChannel5MultiZone</source>
        <translation>流通道5多区域传输</translation>
    </message>
    <message>
        <source>Stream Channel 5 Multi Zone</source>
        <translation>流通道5多区域传输</translation>
    </message>
    <message>
        <source>Splits each image into several zones on stream channel 5.</source>
        <translation>在流通道5上将每帧图像分为多个区域传输。</translation>
    </message>
    <message>
        <source>StreamChannel6PacketResendDestination</source>
        <translation>流通道6重传包目标</translation>
    </message>
    <message>
        <source>Stream Channel 6 Packet Resend Destination</source>
        <translation>流通道6重传包目标</translation>
    </message>
    <message>
        <source>Sends the resent packets of stream channel 6 to the address that asked for them.</source>
        <translation>将流通道6的重传数据包发送到请求重传的地址。</translation>
    </message>
    <message>
        <source>StreamChannel6ExtendedChunkData</source>
        <translation>流通道6扩展块数据</translation>
    </message>
    <message>
        <source>Stream Channel 6 Extended Chunk Data</source>
        <translation>流通道6扩展块数据</translation>
    </message>
    <message>
        <source>Uses the extended chunk data layout on stream channel 6.</source>
        <translation>在流通道6上使用扩展块数据格式。</translation>
    </message>
    <message>
        <source>StreamChannel6MultiZone</source>
        <translation>流通道6多区域传输</translation>
    </message>
    <message>
        <source>Stream Channel 6 Multi Zone</source>
        <translation>流通道6多区域传输</translation>
    </message>
    <message>
        <source>Splits each image into several zones on stream channel 6.</source>
        <translation>在流通道6上将每帧图像分为多个区域传输。</translation>
    </message>
    <message>
        <source>StreamChannel7PacketResendDestination</source>
        <translation>流通道7重传包目标</translation>
    </message>
    <message>
        <source>Stream Channel 7 Packet Resend Destination</source>
        <translation>流通道7重传包目标</translation>
    </message>
    <message>
        <source>Sends the resent packets of stream channel 7 to the address that asked for them.</source>
        <translation>将流通道7的重传数据包发送到请求重传的地址。</translation>
    </message>
    <message>
        <source>StreamChannel7ExtendedChunkData</source>
        <translation>流通道7扩展块数据</translation>
    </message>
    <message>
        <source>Stream Channel 7 Extended Chunk Data</source>
        <translation>流通道7扩展块数据</translation>
    </message>
    <message>
        <source>Uses the extended chunk data layout on stream channel 7.</source>
        <translation>在流通道7上使用扩展块数据格式。</translation>
    </message>
    <message>
        <source>StreamChannel7MultiZone</source>
        <translation>流通道7多区域传输</translation>
    </message>
    <message>
        <source>Stream Channel 7 Multi Zone</source>
        <translation>流通道7多区域传输</translation>
    </message>
    <message>
        <source>Splits each image into several zones on stream channel 7.</source>
        <translation>在流通道7上将每帧图像分为多个区域传输。</translation>
    </message>
    <message>
        <source>StreamChannel8PacketResendDestination</source>
        <translation>流通道8重传包目标</translation>
    </message>
    <message>
        <source>Stream Channel 8 Packet Resend Destination</source>
        <translation>流通道8重传包目标</translation>
    </message>
    <message>
        <source>Sends the resent packets of stream channel 8 to the address that asked for them.</source>
        <translation>将流通道8的重传数据包发送到请求重传的地址。</translation>
    </message>
    <message>
        <source>StreamChannel8ExtendedChunkData</source>
        <translation>流通道8扩展块数据</translation>
    </message>
    <message>
        <source>Stream Channel 8 Extended Chunk Data</source>
        <translation>流通道8扩展块数据</translation>
    </message>
    <message>
        <source>Uses the extended chunk data layout on stream channel 8.</source>
        <translation>在流通道8上使用扩展块数据格式。</translation>
    </message>
    <message>
        <source>StreamChannel8MultiZone</source>
        <translation>流通道8多区域传输</translation>
    </message>
    <message>
        <source>Stream Channel 8 Multi Zone</source>
        <translation>流通道8多区域传输</translation>
    </message>
    <message>
        <source>Splits each image into several zones on stream channel 8.</source>
        <translation>在流通道8上将每帧图像分为多个区域传输。</translation>
    </message>
    <message>
        <source>StreamChannel9PacketResendDestination</source>
        <translation>流通道9重传包目标</translation>
    </message>
    <message>
        <source>Stream Channel 9 Packet Resend Destination</source>
        <translation>流通道9重传包目标</translation>
    </message>
    <message>
        <source>Sends the resent packets of stream channel 9 to the address that asked for them.</source>
        <translation>将流通道9的重传数据包发送到请求重传的地址。</translation>
    </message>
    <message>
        <source>StreamChannel9ExtendedChunkData</source>
        <translation>流通道9扩展块数据</translation>
    </message>
    <message>
        <source>Stream Channel 9 Extended Chunk Data</source>
        <translation>流通道9扩展块数据</translation>
    </message>
    <message>
        <source>Uses the extended chunk data layout on stream channel 9.</source>
        <translation>在流通道9上使用扩展块数据格式。</translation>
    </message>
    <message>
        <source>StreamChannel9MultiZone</source>
        <translation>流通道9多区域传输</translation>
    </message>
    <message>
        <source>Stream Channel 9 Multi Zone</source>
        <translation>流通道9多区域传输</translation>
    </message>
    <message>
        <source>Splits each image into several zones on stream channel 9.</source>
        <translation>在流通道9上将每帧图像分为多个区域传输。</translation>
    </message>
    <message>
        <source>StreamChannel10PacketResendDestination</source>
        <translation>流通道10重传包目标</translation>
    </message>
    <message>
        <source>Stream Channel 10 Packet Resend Destination</source>
        <translation>流通道10重传包目标</translation>
    </message>
    <message>
        <source>Sends the resent packets of stream channel 10 to the address that asked for them.</source>
        <translation>将流通道10的重传数据包发送到请求重传的地址。</translation>
    </message>
    <message>
        <source>StreamChannel10ExtendedChunkData</source>
        <translation>流通道10扩展块数据</translation>
    </message>
    <message>
        <source>Stream Channel 10 Extended Chunk Data</source>
        <translation>流通道10扩展块数据</translation>
    </message>
    <message>
        <source>Uses the extended chunk data layout on stream channel 10.</source>
        <translation>在流通道10上使用扩展块数据格式。</translation>
    </message>
    <message>
        <source>StreamChannel10MultiZone</source>
        <translation>流通道10多区域传输</translation>
    </message>
    <message>
        <source>Stream Channel 10 Multi Zone</source>
        <translation>流通道10多区域传输</translation>
    </message>
    <message>
        <source>Splits each image into several zones on stream channel 10.</source>
        <translation>在流通道10上将每帧图像分为多个区域传输。</translation>
    </message>
    <message>
        <source>StreamChannel11PacketResendDestination</source>
        <translation>流通道11重传包目标</translation>
    </message>
    <message>
        <source>Stream Channel 11 Packet Resend Destination</source>
        <translation>流通道11重传包目标</translation>
    </message>
    <message>
        <source>Sends the resent packets of stream channel 11 to the address that asked for them.</source>
        <translation>将流通道11的重传数据包发送到请求重传的地址。</translation>
    </message>
    <message>
        <source>StreamChannel11ExtendedChunkData</source>
        <translation>流通道11扩展块数据</translation>
    </message>
    <message>
        <source>Stream Channel 11 Extended Chunk Data</source>
        <translation>流通道11扩展块数据</translation>
    </message>
    <message>
        <source>Uses the extended chunk data layout on stream channel 11.</source>
        <translation>在流通道11上使用扩展块数据格式。</translation>
    </message>
    <message>
        <source>StreamChannel11MultiZone</source>
        <translation>流通道11多区域传输</translation>
    </message>
    <message>
        <source>Stream Channel 11 Multi Zone</source>
        <translation>流通道11多区域传输</translation>
    </message>
    <message>
        <source>Splits each image into several zones on stream channel 11.</source>
        <translation>在流通道11上将每帧图像分为多个区域传输。</translation>
    </message>
    <message>
        <source>StreamChannel12PacketResendDestination</source>
        <translation>流通道12重传包目标</translation>
    </message>
    <message>
        <source>Stream Channel 12 Packet Resend Destination</source>
        <translation>流通道12重传包目标</translation>
    </message>
    <message>
        <source>Sends the resent packets of stream channel 12 to the address that asked for them.</source>
        <translation>将流通道12的重传数据包发送到请求重传的地址。</translation>
    </message>
    <message>
        <source>StreamChannel12ExtendedChunkData</source>
        <translation>流通道12扩展块数据</translation>
    </message>
    <message>
        <source>Stream Channel 12 Extended Chunk Data</source>
        <translation>流通道12扩展块数据</translation>
    </message>
    <message>
        <source>Uses the extended chunk data layout on stream channel 12.</source>
        <translation>在流通道12上使用扩展块数据格式。</translation>
    </message>
    <message>
        <source>StreamChannel12MultiZone</source>
        <translation>流通道12多区域传输</translation>
    </message>
    <message>
        <source>Stream Channel 12 Multi Zone</source>
        <translation>流通道12多区域传输</translation>
    </message>
    <message>
        <source>Splits each image into several zones on stream channel 12.</source>
        <translation>在流通道12上将每帧图像分为多个区域传输。</translation>
    </message>
    <message>
        <source>StreamChannel13PacketResendDestination</source>
        <translation>流通道13重传包目标</translation>
    </message>
    <message>
        <source>Stream Channel 13 Packet Resend Destination</source>
        <translation>流通道13重传包目标</translation>
    </message>
    <message>
        <source>Sends the resent packets of stream channel 13 to the address that asked for them.</source>
        <translation>将流通道13的重传数据包发送到请求重传的地址。</translation>
    </message>
    <message>
        <source>StreamChannel13ExtendedChunkData</source>
        <translation>流通道13扩展块数据</translation>
    </message>
    <message>
        <source>Stream Channel 13 Extended Chunk Data</source>
        <translation>流通道13扩展块数据</translation>
    </message>
    <message>
        <source>Uses the extended chunk data layout on stream channel 13.</source>
        <translation>在流通道13上使用扩展块数据格式。</translation>
    </message>
    <message>
        <source>StreamChannel13MultiZone</source>
        <translation>流通道13多区域传输</translation>
    </message>
    <message>
        <source>Stream Channel 13 Multi Zone</source>
        <translation>流通道13多区域传输</translation>
    </message>
    <message>
        <source>Splits each image into several zones on stream channel 13.</source>
        <translation>在流通道13上将每帧图像分为多个区域传输。</translation>
    </message>
    <message>
        <source>StreamChannel14PacketResendDestination</source>
        <translation>流通道14重传包目标</translation>
    </message>
    <message>
        <source>Stream Channel 14 Packet Resend Destination</source>
        <translation>流通道14重传包目标</translation>
    </message>
    <message>
        <source>Sends the resent packets of stream channel 14 to the address that asked for them.</source>
        <translation>将流通道14的重传数据包发送到请求重传的地址。</translation>
    </message>
    <message>
        <source>StreamChannel14ExtendedChunkData</source>
        <translation>流通道14扩展块数据</translation>
    </message>
    <message>
        <source>Stream Channel 14 Extended Chunk Data</source>
        <translation>流通道14扩展块数据</translation>
    </message>
    <message>
        <source>Uses the extended chunk data layout on stream channel 14.</source>
        <translation>在流通道14上使用扩展块数据格式。</translation>
    </message>
    <message>
        <source>StreamChannel14MultiZone</source>
        <translation>流通道14多区域传输</translation>
    </message>
    <message>
        <source>Stream Channel 14 Multi Zone</source>
        <translation>流通道14多区域传输</translation>
    </message>
    <message>
        <source>Splits each image into several zones on stream channel 14.</source>
        <translation>在流通道14上将每帧图像分为多个区域传输。</translation>
    </message>
    <message>
        <source>StreamChannel15PacketResendDestination</source>
        <translation>流通道15重传包目标</translation>
    </message>
    <message>
        <source>Stream Channel 15 Packet Resend Destination</source>
        <translation>流通道15重传包目标</translation>
    </message>
    <message>
        <source>Sends the resent packets of stream channel 15 to the address that asked for them.</source>
        <translation>将流通道15的重传数据包发送到请求重传的地址。</translation>
    </message>
    <message>
        <source>StreamChannel15ExtendedChunkData</source>
        <translation>流通道15扩展块数据</translation>
    </message>
    <message>
        <source>Stream Channel 15 Extended Chunk Data</source>
        <translation>流通道15扩展块数据</translation>
    </message>
    <message>
        <source>Uses the extended chunk data layout on stream channel 15.</source>
        <translation>在流通道15上使用扩展块数据格式。</translation>
    </message>
    <message>
        <source>StreamChannel15MultiZone</source>
        <translation>流通道15多区域传输</translation>
    </message>
    <message>
        <source>Stream Channel 15 Multi Zone</source>
        <translation>流通道15多区域传输</translation>
    </message>
    <message>
        <source>Splits each image into several zones on stream channel 15.</source>
        <translation>在流通道15上将每帧图像分为多个区域传输。</translation>
    </message>
    <message>
        <source>StreamChannel16PacketResendDestination</source>
        <translation>流通道16重传包目标</translation>
    </message>
    <message>
        <source>Stream Channel 16 Packet Resend Destination</source>
        <translation>流通道16重传包目标</translation>
    </message>
    <message>
        <source>Sends the resent packets of stream channel 16 to the address that asked for them.</source>
        <translation>将流通道16的重传数据包发送到请求重传的地址。</translation>
    </message>
    <message>
        <source>StreamChannel16ExtendedChunkData</source>
        <translation>流通道16扩展块数据</translation>
    </message>
    <message>
        <source>Stream Channel 16 Extended Chunk Data</source>
        <translation>流通道16扩展块数据</translation>
    </message>
    <message>
        <source>Uses the extended chunk data layout on stream channel 16.</source>
        <translation>在流通道16上使用扩展块数据格式。</translation>
    </message>
    <message>
        <source>StreamChannel16MultiZone</source>
        <translation>流通道16多区域传输</translation>
    </message>
    <message>
        <source>Stream Channel 16 Multi Zone</source>
        <translation>流通道16多区域传输</translation>
    </message>
    <message>
        <source>Splits each image into several zones on stream channel 16.</source>
        <translation>在流通道16上将每帧图像分为多个区域传输。</translation>
    </message>
    <message>
        <source>StreamChannel17PacketResendDestination</source>
        <translation>流通道17重传包目标</translation>
    </message>
    <message>
        <source>Stream Channel 17 Packet Resend Destination</source>
        <translation>流通道17重传包目标</translation>
    </message>
    <message>
        <source>Sends the resent packets of stream channel 17 to the address that asked for them.</source>
        <translation>将流通道17的重传数据包发送到请求重传的地址。</translation>
    </message>
    <message>
        <source>StreamChannel17ExtendedChunkData</source>
        <translation>流通道17扩展块数据</translation>
    </message>
    <message>
        <source>Stream Channel 17 Extended Chunk Data</source>
        <translation>流通道17扩展块数据</translation>
    </message>
    <message>
        <source>Uses the extended chunk data layout on stream channel 17.</source>
        <translation>在流通道17上使用扩展块数据格式。</translation>
    </message>
    <message>
        <source>StreamChannel17MultiZone</source>
        <translation>流通道17多区域传输</translation>
    </message>
    <message>
        <source>Stream Channel 17 Multi Zone</source>
        <translation>流通道17多区域传输</translation>
    </message>
    <message>
        <source>Splits each image into several zones on stream channel 17.</source>
        <translation>在流通道17上将每帧图像分为多个区域传输。</translation>
    </message>
    <message>
        <source>StreamChannel18PacketResendDestination</source>
        <translation>流通道18重传包目标</translation>
    </message>
    <message>
        <source>Stream Channel 18 Packet Resend Destination</source>
        <translation>流通道18重传包目标</translation>
    </message>
    <message>
        <source>Sends the resent packets of stream channel 18 to the address that asked for them.</source>
        <translation>将流通道18的重传数据包发送到请求重传的地址。</translation>
    </message>
    <message>
        <source>StreamChannel18ExtendedChunkData</source>
        <translation>流通道18扩展块数据</translation>
    </message>
    <message>
        <source>Stream Channel 18 Extended Chunk Data</source>
        <translation>流通道18扩展块数据</translation>
    </message>
    <message>
        <source>Uses the extended chunk data layout on stream channel 18.</source>
        <translation>在流通道18上使用扩展块数据格式。</translation>
    </message>
    <message>
        <source>StreamChannel18MultiZone</source>
        <translation>流通道18多区域传输</translation>
    </message>
    <message>
        <source>Stream Channel 18 Multi Zone</source>
        <translation>流通道18多区域传输</translation>
    </message>
    <message>
        <source>Splits each image into several zones on stream channel 18.</source>
        <translation>在流通道18上将每帧图像分为多个区域传输。</translation>
    </message>
    <message>
        <source>StreamChannel19PacketResendDestination</source>
        <translation>流通道19重传包目标</translation>
    </message>
    <message>
        <source>Stream Channel 19 Packet Resend Destination</source>
        <translation>流通道19重传包目标</translation>
    </message>
    <message>
        <source>Sends the resent packets of stream channel 19 to the address that asked for them.</source>
        <translation>将流通道19的重传数据包发送到请求重传的地址。</translation>
    </message>
    <message>
        <source>StreamChannel19ExtendedChunkData</source>
        <translation>流通道19扩展块数据</translation>
    </message>
    <message>
        <source>Stream Channel 19 Extended Chunk Data</source>
        <translation>流通道19扩展块数据</translation>
    </message>
    <message>
        <source>Uses the extended chunk data layout on stream channel 19.</source>
        <translation>在流通道19上使用扩展块数据格式。</translation>
    </message>
    <message>
        <source>StreamChannel19MultiZone</source>
        <translation>流通道19多区域传输</translation>
    </message>
    <message>
        <source>Stream Channel 19 Multi Zone</source>
        <translation>流通道19多区域传输</translation>
    </message>
    <message>
        <source>Splits each image into several zones on stream channel 19.</source>
        <translation>在流通道19上将每帧图像分为多个区域传输。</translation>
    </message>
    <message>
        <source>StreamChannel20PacketResendDestination</source>
        <translation>流通道20重传包目标</translation>
    </message>
    <message>
        <source>Stream Channel 20 Packet Resend Destination</source>
        <translation>流通道20重传包目标</translation>
    </message>
    <message>
        <source>Sends the resent packets of stream channel 20 to the address that asked for them.</source>
        <translation>将流通道20的重传数据包发送到请求重传的地址。</translation>
    </message>
    <message>
        <source>StreamChannel20ExtendedChunkData</source>
        <translation>流通道20扩展块数据</translation>
    </message>
    <message>
        <source>Stream Channel 20 Extended Chunk Data</source>
        <translation>流通道20扩展块数据</translation>
    </message>
    <message>
        <source>Uses the extended chunk data layout on stream channel 20.</source>
        <translation>在流通道20上使用扩展块数据格式。</translation>
    </message>
    <message>
        <source>StreamChannel20MultiZone</source>
        <translation>流通道20多区域传输</translation>
    </message>
    <message>
        <source>Stream Channel 20 Multi Zone</source>
        <translation>流通道20多区域传输</translation>
    </message>
    <message>
        <source>Splits each image into several zones on stream channel 20.</source>
        <translation>在流通道20上将每帧图像分为多个区域传输。</translation>
    </message>
    <message>
        <source>StreamChannel21PacketResendDestination</source>
        <translation>流通道21重传包目标</translation>
    </message>
    <message>
        <source>Stream Channel 21 Packet Resend Destination</source>
        <translation>流通道21重传包目标</translation>
    </message>
    <message>
        <source>Sends the resent packets of stream channel 21 to the address that asked for them.</source>
        <translation>将流通道21的重传数据包发送到请求重传的地址。</translation>
    </message>
    <message>
        <source>StreamChannel21ExtendedChunkData</source>
        <translation>流通道21扩展块数据</translation>
    </message>
    <message>
        <source>Stream Channel 21 Extended Chunk Data</source>
        <translation>流通道21扩展块数据</translation>
    </message>
    <message>
        <source>Uses the extended chunk data layout on stream channel 21.</source>
        <translation>在流通道21上使用扩展块数据格式。</translation>
    </message>
    <message>
        <source>StreamChannel21MultiZone</source>
        <translation>流通道21多区域传输</translation>
    </message>
    <message>
        <source>Stream Channel 21 Multi Zone</source>
        <translation>流通道21多区域传输</translation>
    </message>
    <message>
        <source>Splits each image into several zones on stream channel 21.</source>
        <translation>在流通道21上将每帧图像分为多个区域传输。</translation>
    </message>
    <message>
        <source>StreamChannel22PacketResendDestination</source>
        <translation>流通道22重传包目标</translation>
    </message>
    <message>
        <source>Stream Channel 22 Packet Resend Destination</source>
        <translation>流通道22重传包目标</translation>
    </message>
    <message>
        <source>Sends the resent packets of stream channel 22 to the address that asked for them.</source>
        <translation>将流通道22的重传数据包发送到请求重传的地址。</translation>
    </message>
    <message>
        <source>StreamChannel22ExtendedChunkData</source>
        <translation>流通道22扩展块数据</translation>
    </message>
    <message>
        <source>Stream Channel 22 Extended Chunk Data</source>
        <translation>流通道22扩展块数据</translation>
    </message>
    <message>
        <source>Uses the extended chunk data layout on stream channel 22.</source>
        <translation>在流通道22上使用扩展块数据格式。</translation>
    </message>
    <message>
        <source>StreamChannel22MultiZone</source>
        <translation>流通道22多区域传输</translation>
    </message>
    <message>
        <source>Stream Channel 22 Multi Zone</source>
        <translation>流通道22多区域传输</translation>
    </message>
    <message>
        <source>Splits each image into several zones on stream channel 22.</source>
        <translation>在流通道22上将每帧图像分为多个区域传输。</translation>
    </message>
    <message>
        <source>StreamChannel23PacketResendDestination</source>
        <translation>流通道23重传包目标</translation>
    </message>
    <message>
        <source>Stream Channel 23 Packet Resend Destination</source>
        <translation>流通道23重传包目标</translation>
    </message>
    <message>
        <source>Sends the resent packets of stream channel 23 to the address that asked for them.</source>
        <translation>将流通道23的重传数据包发送到请求重传的地址。</translation>
    </message>
    <message>
        <source>StreamChannel23ExtendedChunkData</source>
        <translation>流通道23扩展块数据</translation>
    </message>
    <message>
        <source>Stream Channel 23 Extended Chunk Data</source>
        <translation>流通道23扩展块数据</translation>
    </message>
    <message>
        <source>Uses the extended chunk data layout on stream channel 23.</source>
        <translation>在流通道23上使用扩展块数据格式。</translation>
    </message>
    <message>
        <source>StreamChannel23MultiZone</source>
        <translation>流通道23多区域传输</translation>
    </message>
    <message>
        <source>Stream Channel 23 Multi Zone</source>
        <translation>流通道23多区域传输</translation>
    </message>
    <message>
        <source>Splits each image into several zones on stream channel 23.</source>
        <translation>在流通道23上将每帧图像分为多个区域传输。</translation>
    </message>
    <message>
        <source>StreamChannel24PacketResendDestination</source>
        <translation>流通道24重传包目标</translation>
    </message>
    <message>
        <source>Stream Channel 24 Packet Resend Destination</source>
        <translation>流通道24重传包目标</translation>
    </message>
    <message>
        <source>Sends the resent packets of stream channel 24 to the address that asked for them.</source>
        <translation>将流通道24的重传数据包发送到请求重传的地址。</translation>
    </message>
    <message>
        <source>StreamChannel24ExtendedChunkData</source>
        <translation>流通道24扩展块数据</translation>
    </message>
    <message>
        <source>Stream Channel 24 Extended Chunk Data</source>
        <translation>流通道24扩展块数据</translation>
    </message>
    <message>
        <source>Uses the extended chunk data layout on stream channel 24.</source>
        <translation>在流通道24上使用扩展块数据格式。</translation>
    </message>
    <message>
        <source>StreamChannel24MultiZone</source>
        <translation>流通道24多区域传输</translation>
    </message>
    <message>
        <source>Stream Channel 24 Multi Zone</source>
        <translation>流通道24多区域传输</translation>
    </message>
    <message>
        <source>Splits each image into several zones on stream channel 24.</source>
        <translation>在流通道24上将每帧图像分为多个区域传输。</translation>
    </message>
    <message>
        <source>StreamChannel25PacketResendDestination</source>
        <translation>流通道25重传包目标</translation>
    </message>
    <message>
        <source>Stream Channel 25 Packet Resend Destination</source>
        <translation>流通道25重传包目标</translation>
    </message>
    <message>
        <source>Sends the resent packets of stream channel 25 to the address that asked for them.</source>
        <translation>将流通道25的重传数据包发送到请求重传的地址。</translation>
    </message>
    <message>
        <source>StreamChannel25ExtendedChunkData</source>
        <translation>流通道25扩展块数据</translation>
    </message>
    <message>
        <source>Stream Channel 25 Extended Chunk Data</source>
        <translation>流通道25扩展块数据</translation>
    </message>
    <message>
        <source>Uses the extended chunk data layout on stream channel 25.</source>
        <translation>在流通道25上使用扩展块数据格式。</translation>
    </message>
    <message>
        <source>StreamChannel25MultiZone</source>
        <translation>流通道25多区域传输</translation>
    </message>
    <message>
        <source>Stream Channel 25 Multi Zone</source>
        <translation>流通道25多区域传输</translation>
    </message>
    <message>
        <source>Splits each image into several zones on stream channel 25.</source>
        <translation>在流通道25上将每帧图像分为多个区域传输。</translation>
    </message>
    <message>
        <source>StreamChannel26PacketResendDestination</source>
        <translation>流通道26重传包目标</translation>
    </message>
    <message>
        <source>Stream Channel 26 Packet Resend Destination</source>
        <translation>流通道26重传包目标</translation>
    </message>
    <message>
        <source>Sends the resent packets of stream channel 26 to the address that asked for them.</source>
        <translation>将流通道26的重传数据包发送到请求重传的地址。</translation>
    </message>
    <message>
        <source>StreamChannel26ExtendedChunkData</source>
        <translation>流通道26扩展块数据</translation>
    </message>
    <message>
        <source>Stream Channel 26 Extended Chunk Data</source>
        <translation>流通道26扩展块数据</translation>
    </message>
    <message>
        <source>Uses the extended chunk data layout on stream channel 26.</source>
        <translation>在流通道26上使用扩展块数据格式。</translation>
    </message>
    <message>
        <source>StreamChannel26MultiZone</source>
        <translation>流通道26多区域传输</translation>
    </message>
    <message>
        <source>Stream Channel 26 Multi Zone</source>
        <translation>流通道26多区域传输</translation>
    </message>
    <message>
        <source>Splits each image into several zones on stream channel 26.</source>
        <translation>在流通道26上将每帧图像分为多个区域传输。</translation>
    </message>
    <message>
        <source>StreamChannel27PacketResendDestination</source>
        <translation>流通道27重传包目标</translation>
    </message>
    <message>
        <source>Stream Channel 27 Packet Resend Destination</source>
        <translation>流通道27重传包目标</translation>
    </message>
    <message>
        <source>Sends the resent packets of stream channel 27 to the address that asked for them.</source>
        <translation>将流通道27的重传数据包发送到请求重传的地址。</translation>
    </message>
    <message>
        <source>StreamChannel27ExtendedChunkData</source>
        <translation>流通道27扩展块数据</translation>
    </message>
    <message>
        <source>Stream Channel 27 Extended Chunk Data</source>
        <translation>流通道27扩展块数据</translation>
    </message>
    <message>
        <source>Uses the extended chunk data layout on stream channel 27.</source>
        <translation>在流通道27上使用扩展块数据格式。</translation>
    </message>
    <message>
        <source>StreamChannel27MultiZone</source>
        <translation>流通道27多区域传输</translation>
    </message>
    <message>
        <source>Stream Channel 27 Multi Zone</source>
        <translation>流通道27多区域传输</translation>
    </message>
    <message>
        <source>Splits each image into several zones on stream channel 27.</source>
        <translation>在流通道27上将每帧图像分为多个区域传输。</translation>
    </message>
    <message>
        <source>StreamChannel28PacketResendDestination</source>
        <translation>流通道28重传包目标</translation>
    </message>
    <message>
        <source>Stream Channel 28 Packet Resend Destination</source>
        <translation>流通道28重传包目标</translation>
    </message>
    <message>
        <source>Sends the resent packets of stream channel 28 to the address that asked for them.</source>
        <translation>将流通道28的重传数据包发送到请求重传的地址。</translation>
    </message>
    <message>
        <source>StreamChannel28ExtendedChunkData</source>
        <translation>流通道28扩展块数据</translation>
    </message>
    <message>
        <source>Stream Channel 28 Extended Chunk Data</source>
        <translation>流通道28扩展块数据</translation>
    </message>
    <message>
        <source>Uses the extended chunk data layout on stream channel 28.</source>
        <translation>在流通道28上使用扩展块数据格式。</translation>
    </message>
    <message>
        <source>StreamChannel28MultiZone</source>
        <translation>流通道28多区域传输</translation>
    </message>
    <message>
        <source>Stream Channel 28 Multi Zone</source>
        <translation>流通道28多区域传输</translation>
    </message>
    <message>
        <source>Splits each image into several zones on stream channel 28.</source>
        <translation>在流通道28上将每帧图像分为多个区域传输。</translation>
    </message>
    <message>
        <source>StreamChannel29PacketResendDestination</source>
        <translation>流通道29重传包目标</translation>
    </message>
    <message>
        <source>Stream Channel 29 Packet Resend Destination</source>
        <translation>流通道29重传包目标</translation>
    </message>
    <message>
        <source>Sends the resent packets of stream channel 29 to the address that asked for them.</source>
        <translation>将流通道29的重传数据包发送到请求重传的地址。</translation>
    </message>
    <message>
        <source>StreamChannel29ExtendedChunkData</source>
        <translation>流通道29扩展块数据</translation>
    </message>
    <message>
        <source>Stream Channel 29 Extended Chunk Data</source>
        <translation>流通道29扩展块数据</translation>
    </message>
    <message>
        <source>Uses the extended chunk data layout on stream channel 29.</source>
        <translation>在流通道29上使用扩展块数据格式。</translation>
    </message>
    <message>
        <source>StreamChannel29MultiZone</source>
        <translation>流通道29多区域传输</translation>
    </message>
    <message>
        <source>Stream Channel 29 Multi Zone</source>
        <translation>流通道29多区域传输</translation>
    </message>
    <message>
        <source>Splits each image into several zones on stream channel 29.</source>
        <translation>在流通道29上将每帧图像分为多个区域传输。</translation>
    </message>
    <message>
        <source>StreamChannel30PacketResendDestination</source>
        <translation>流通道30重传包目标</translation>
    </message>
    <message>
        <source>Stream Channel 30 Packet Resend Destination</source>
        <translation>流通道30重传包目标</translation>
    </message>
    <message>
        <source>Sends the resent packets of stream channel 30 to the address that asked for them.</source>
        <translation>将流通道30的重传数据包发送到请求重传的地址。</translation>
    </message>
    <message>
        <source>StreamChannel30ExtendedChunkData</source>
        <translation>流通道30扩展块数据</translation>
    </message>
    <message>
        <source>Stream Channel 30 Extended Chunk Data</source>
        <translation>流通道30扩展块数据</translation>
    </message>
    <message>
        <source>Uses the extended chunk data layout on stream channel 30.</source>
        <translation>在流通道30上使用扩展块数据格式。</translation>
    </message>
    <message>
        <source>StreamChannel30MultiZone</source>
        <translation>流通道30多区域传输</translation>
    </message>
    <message>
        <source>Stream Channel 30 Multi Zone</source>
        <translation>流通道30多区域传输</translation>
    </message>
    <message>
        <source>Splits each image into several zones on stream channel 30.</source>
        <translation>在流通道30上将每帧图像分为多个区域传输。</translation>
    </message>
    <message>
        <source>StreamChannel31PacketResendDestination</source>
        <translation>流通道31重传包目标</translation>
    </message>
    <message>
        <source>Stream Channel 31 Packet Resend Destination</source>
        <translation>流通道31重传包目标</translation>
    </message>
    <message>
        <source>Sends the resent packets of stream channel 31 to the address that asked for them.</source>
        <translation>将流通道31的重传数据包发送到请求重传的地址。</translation>
    </message>
    <message>
        <source>StreamChannel31ExtendedChunkData</source>
        <translation>流通道31扩展块数据</translation>
    </message>
    <message>
        <source>Stream Channel 31 Extended Chunk Data</source>
        <translation>流通道31扩展块数据</translation>
    </message>
    <message>
        <source>Uses the extended chunk data layout on stream channel 31.</source>
        <translation>在流通道31上使用扩展块数据格式。</translation>
    </message>
    <message>
        <source>StreamChannel31MultiZone</source>
        <translation>流通道31多区域传输</translation>
    </message>
    <message>
        <source>Stream Channel 31 Multi Zone</source>
        <translation>流通道31多区域传输</translation>
    </message>
    <message>
        <source>Splits each image into several zones on stream channel 31.</source>
        <translation>在流通道31上将每帧图像分为多个区域传输。</translation>
    </message>
    <message>
        <source>AdvancedDenoisingEnable</source>
        <translation>高级降噪使能</translation>
    </message>
    <message>
        <source>Advanced Denoising Enable</source>
        <translation>高级降噪使能</translation>
    </message>
    <message>
        <source>Turns the device's advanced noise reduction on or off.</source>
        <translation>开启或关闭设备的高级降噪。</translation>
    </message>
    <message>
        <source>AdvancedDenoisingLevel</source>
        <translation>高级降噪强度</translation>
    </message>
    <message>
        <source>Advanced Denoising Level</source>
        <translation>高级降噪强度</translation>
    </message>
    <message>
        <source>Strength of the advanced noise reduction.</source>
        <translation>高级降噪的强度。</translation>
    </message>
    <message>
        <source>DefectPixelCorrectionEnable</source>
        <translation>坏点校正使能</translation>
    </message>
    <message>
        <source>Defect Pixel Correction Enable</source>
        <translation>坏点校正使能</translation>
    </message>
    <message>
        <source>Turns the correction of defective pixels on or off.</source>
        <translation>开启或关闭坏点校正。</translation>
    </message>
    <message>
        <source>FlatFieldCorrectionEnable</source>
        <translation>平场校正使能</translation>
    </message>
    <message>
        <source>Flat Field Correction Enable</source>
        <translation>平场校正使能</translation>
    </message>
    <message>
        <source>Turns flat-field correction on or off.</source>
        <translation>开启或关闭平场校正。</translation>
    </message>
    <message>
        <source>LensShadingCorrectionEnable</source>
        <translation>镜头阴影校正使能</translation>
    </message>
    <message>
        <source>Lens Shading Correction Enable</source>
        <translation>镜头阴影校正使能</translation>
    </message>
    <message>
        <source>Turns the correction of lens shading on or off.</source>
        <translation>开启或关闭镜头阴影校正。</translation>
    </message>
    <message>
        <source>PreAmpGain</source>
        <translation>前置放大增益</translation>
    </message>
    <message>
        <source>Pre-Amp Gain</source>
        <translation>前置放大增益</translation>
    </message>
    <message>
        <source>Gain of the amplifier in front of the digitizer.</source>
        <translation>模数转换器前端放大器的增益。</translation>
    </message>
    <message>
        <source>LaserEnable</source>
        <translation>激光使能</translation>
    </message>
    <message>
        <source>Laser Enable</source>
        <translation>激光使能</translation>
    </message>
    <message>
        <source>Turns the aiming laser on or off.</source>
        <translation>开启或关闭瞄准激光。</translation>
    </message>
    <message>
        <source>LaserBrightness</source>
        <translation>激光亮度</translation>
    </message>
    <message>
        <source>Laser Brightness</source>
        <translation>激光亮度</translation>
    </message>
    <message>
        <source>Brightness of the aiming laser.</source>
        <translation>瞄准激光的亮度。</translation>
    </message>
    <message>
        <source>IrisType</source>
        <translation>光圈类型</translation>
    </message>
    <message>
        <source>Iris Type</source>
        <translation>光圈类型</translation>
    </message>
    <message>
        <source>Type of iris of the mounted lens.</source>
        <translation>所装镜头的光圈类型。</translation>
    </message>
    <message>
        <source>IrisTypeDetect</source>
        <translation>光圈类型检测</translation>
    </message>
    <message>
        <source>Iris Type Detect</source>
        <translation>光圈类型检测</translation>
    </message>
    <message>
        <source>Detects the iris type of the mounted lens.</source>
        <translation>检测所装镜头的光圈类型。</translation>
    </message>
    <message>
        <source>IrisAperture</source>
        <translation>光圈开度</translation>
    </message>
    <message>
        <source>Iris Aperture</source>
        <translation>光圈开度</translation>
    </message>
    <message>
        <source>Opening of the lens iris.</source>
        <translation>镜头光圈的开启程度。</translation>
    </message>
    <message>
        <source>LightMode</source>
        <translation>光源模式</translation>
    </message>
    <message>
        <source>Light Mode</source>
        <translation>光源模式</translation>
    </message>
    <message>
        <source>Sets how the built-in light behaves.</source>
        <translation>设置内置光源的工作方式。</translation>
    </message>
    <message>
        <source>LightBrightness</source>
        <translation>光源亮度</translation>
    </message>
    <message>
        <source>Light Brightness</source>
        <translation>光源亮度</translation>
    </message>
    <message>
        <source>Brightness of the built-in light.</source>
        <translation>内置光源的亮度。</translation>
    </message>
    <message>
        <source>BeepEnable</source>
        <translation>蜂鸣器使能</translation>
    </message>
    <message>
        <source>Beep Enable</source>
        <translation>蜂鸣器使能</translation>
    </message>
    <message>
        <source>Turns the beeper of the device on or off.</source>
        <translation>开启或关闭设备蜂鸣器。</translation>
    </message>
    <message>
        <source>BeepTimes</source>
        <translation>蜂鸣次数</translation>
    </message>
    <message>
        <source>Beep Times</source>
        <translation>蜂鸣次数</translation>
    </message>
    <message>
        <source>Number of beeps given for each signal.</source>
        <translation>每次提示的蜂鸣次数。</translation>
    </message>
    <message>
        <source>StaticLAG</source>
        <translation>静态链路聚合</translation>
    </message>
    <message>
        <source>Static LAG</source>
        <translation>静态链路聚合</translation>
    </message>
    <message>
        <source>Combines the network ports into one static link aggregation group.</source>
        <translation>将网络端口组成一个静态链路聚合组。</translation>
    </message>
    <message>
        <source>UserLedSelector</source>
        <translation>用户指示灯选择器</translation>
    </message>
    <message>
        <source>User LED Selector</source>
        <translation>用户指示灯选择器</translation>
    </message>
    <message>
        <source>Chooses the status light the application controls.</source>
        <translation>选择由应用程序控制的指示灯。</translation>
    </message>
    <message>
        <source>UserLedEnable</source>
        <translation>用户指示灯使能</translation>
    </message>
    <message>
        <source>User LED Enable</source>
        <translation>用户指示灯使能</translation>
    </message>
    <message>
        <source>Turns the chosen status light on or off.</source>
        <translation>开启或关闭所选指示灯。</translation>
    </message>
    <message>
        <source>FrameCounter</source>
        <translation>帧计数器</translation>
    </message>
    <message>
        <source>Frame Counter</source>
        <translation>帧计数器</translation>
    </message>
    <message>
        <source>Number of frames taken since acquisition started.</source>
        <translation>采集开始以来获取的帧数。</translation>
    </message>
    <message>
        <source>PacketResendEnable</source>
        <translation>丢包重传使能</translation>
    </message>
    <message>
        <source>Packet Resend Enable</source>
        <translation>丢包重传使能</translation>
    </message>
    <message>
        <source>Lets the device send lost stream packets again.</source>
        <translation>允许设备重发丢失的流数据包。</translation>
    </message>
    <message>
        <source>FrameBufferCount</source>
        <translation>帧缓存数</translation>
    </message>
    <message>
        <source>Frame Buffer Count</source>
        <translation>帧缓存数</translation>
    </message>
    <message>
        <source>Number of frames the device can hold in its memory.</source>
        <translation>设备内存可缓存的帧数。</translation>
    </message>
    <message>
        <source>FrameBufferOverflowCount</source>
        <translation>帧缓存溢出数</translation>
    </message>
    <message>
        <source>Frame Buffer Overflow Count</source>
        <translation>帧缓存溢出数</translation>
    </message>
    <message>
        <source>Number of frames lost because the device memory was full.</source>
        <translation>因设备内存已满而丢失的帧数。</translation>
    </message>
    <message>
        <source>WideDynamicRangeEnable</source>
        <translation>宽动态使能</translation>
    </message>
    <message>
        <source>Wide Dynamic Range Enable</source>
        <translation>宽动态使能</translation>
    </message>
    <message>
        <source>Turns the wide dynamic range mode on or off.</source>
        <translation>开启或关闭宽动态模式。</translation>
    </message>
    <message>
        <source>FanMode</source>
        <translation>风扇模式</translation>
    </message>
    <message>
        <source>Fan Mode</source>
        <translation>风扇模式</translation>
    </message>
    <message>
        <source>Sets how the cooling fan of the device runs.</source>
        <translation>设置设备散热风扇的运行方式。</translation>
    </message>
    <message>
        <source>SerialBaudRate</source>
        <translation>串口波特率设置</translation>
    </message>
    <message>
        <source>Serial Baud Rate</source>
        <translation>串口波特率设置</translation>
    </message>
    <message>
        <source>Baud rate of the serial port of the device.</source>
        <translation>设备串口的波特率。</translation>
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
    <message>
        <source>{Not Available}</source>
        <translation>{不可用}</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开启</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关闭</translation>
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
        <source>Continuous</source>
        <translation>连续</translation>
    </message>
    <message>
        <source>Once</source>
        <translation>单次</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>默认</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>自定义</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>手动</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
    <message>
        <source>Enable</source>
        <translation>启用</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>禁用</translation>
    </message>
    <message>
        <source>Transmitter</source>
        <translation>发送端</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>接收端</translation>
    </message>
    <message>
        <source>Transceiver</source>
        <translation>收发器</translation>
    </message>
    <message>
        <source>Peripheral</source>
        <translation>外设</translation>
    </message>
    <message>
        <source>Areascan</source>
        <translation>面阵</translation>
    </message>
    <message>
        <source>Linescan</source>
        <translation>线阵</translation>
    </message>
    <message>
        <source>Areascan3D</source>
        <translation>3D面阵</translation>
    </message>
    <message>
        <source>Linescan3D</source>
        <translation>3D线阵</translation>
    </message>
    <message>
        <source>GigEVision</source>
        <translation>GigE Vision接口</translation>
    </message>
    <message>
        <source>CameraLink</source>
        <translation>Camera Link接口</translation>
    </message>
    <message>
        <source>CameraLinkHS</source>
        <translation>Camera Link HS接口</translation>
    </message>
    <message>
        <source>CoaXPress</source>
        <translation>CoaXPress接口</translation>
    </message>
    <message>
        <source>USB3Vision</source>
        <translation>USB3 Vision接口</translation>
    </message>
    <message>
        <source>UTF8</source>
        <translation>UTF-8编码</translation>
    </message>
    <message>
        <source>ASCII</source>
        <translation>ASCII编码</translation>
    </message>
    <message>
        <source>UTF16</source>
        <translation>UTF-16编码</translation>
    </message>
    <message>
        <source>Sensor</source>
        <translation>传感器</translation>
    </message>
    <message>
        <source>Mainboard</source>
        <translation>主板</translation>
    </message>
    <message>
        <source>Little</source>
        <translation>小端</translation>
    </message>
    <message>
        <source>Big</source>
        <translation>大端</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>非活动</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>活动</translation>
    </message>
    <message>
        <source>ErrorStatus</source>
        <translation>仅错误状态</translation>
    </message>
    <message>
        <source>SensorDigitization</source>
        <translation>传感器数字化</translation>
    </message>
    <message>
        <source>Uart0</source>
        <translation>串口0</translation>
    </message>
    <message>
        <source>Uart1</source>
        <translation>串口1</translation>
    </message>
    <message>
        <source>Baud9600</source>
        <translation>9600 波特</translation>
    </message>
    <message>
        <source>Baud14400</source>
        <translation>14400 波特</translation>
    </message>
    <message>
        <source>Baud19200</source>
        <translation>19200 波特</translation>
    </message>
    <message>
        <source>Baud38400</source>
        <translation>38400 波特</translation>
    </message>
    <message>
        <source>Baud57600</source>
        <translation>57600 波特</translation>
    </message>
    <message>
        <source>Baud115200</source>
        <translation>115200 波特</translation>
    </message>
    <message>
        <source>Baud230400</source>
        <translation>230400 波特</translation>
    </message>
    <message>
        <source>Baud460800</source>
        <translation>460800 波特</translation>
    </message>
    <message>
        <source>Baud921600</source>
        <translation>921600 波特</translation>
    </message>
    <message>
        <source>Internal</source>
        <translation>内部</translation>
    </message>
    <message>
        <source>External</source>
        <translation>外部</translation>
    </message>
    <message>
        <source>Global</source>
        <translation>全局快门</translation>
    </message>
    <message>
        <source>Rolling</source>
        <translation>卷帘快门</translation>
    </message>
    <message>
        <source>GlobalReset</source>
        <translation>全局复位</translation>
    </message>
    <message>
        <source>One</source>
        <translation>一路</translation>
    </message>
    <message>
        <source>Two</source>
        <translation>两路</translation>
    </message>
    <message>
        <source>Three</source>
        <translation>三路</translation>
    </message>
    <message>
        <source>Four</source>
        <translation>四路</translation>
    </message>
    <message>
        <source>Eight</source>
        <translation>八路</translation>
    </message>
    <message>
        <source>Ten</source>
        <translation>十路</translation>
    </message>
    <message>
        <source>Region0</source>
        <translation>区域0</translation>
    </message>
    <message>
        <source>Region1</source>
        <translation>区域1</translation>
    </message>
    <message>
        <source>Region2</source>
        <translation>区域2</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Stream0</source>
        <translation>数据流0</translation>
    </message>
    <message>
        <source>Stream1</source>
        <translation>数据流1</translation>
    </message>
    <message>
        <source>Stream2</source>
        <translation>数据流2</translation>
    </message>
    <message>
        <source>ROI1</source>
        <translation>感兴趣区域1</translation>
    </message>
    <message>
        <source>ROI2</source>
        <translation>感兴趣区域2</translation>
    </message>
    <message>
        <source>ROI3</source>
        <translation>感兴趣区域3</translation>
    </message>
    <message>
        <source>ROI4</source>
        <translation>感兴趣区域4</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>求和</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>平均</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>丢弃</translation>
    </message>
    <message>
        <source>Mono</source>
        <translation>单色</translation>
    </message>
    <message>
        <source>MonoSigned</source>
        <translation>有符号单色</translation>
    </message>
    <message>
        <source>MonoPacked</source>
        <translation>单色打包</translation>
    </message>
    <message>
        <source>RGBPacked</source>
        <translation>RGB打包</translation>
    </message>
    <message>
        <source>BGRPacked</source>
        <translation>BGR打包</translation>
    </message>
    <message>
        <source>RGBAPacked</source>
        <translation>RGBA打包</translation>
    </message>
    <message>
        <source>BGRAPacked</source>
        <translation>BGRA打包</translation>
    </message>
    <message>
        <source>RGBPlanar</source>
        <translation>RGB平面</translation>
    </message>
    <message>
        <source>Raw</source>
        <translation>原始数据</translation>
    </message>
    <message>
        <source>Bpp1</source>
        <translation>1 位</translation>
    </message>
    <message>
        <source>Bpp2</source>
        <translation>2 位</translation>
    </message>
    <message>
        <source>Bpp4</source>
        <translation>4 位</translation>
    </message>
    <message>
        <source>Bpp8</source>
        <translation>8 位</translation>
    </message>
    <message>
        <source>Bpp10</source>
        <translation>10 位</translation>
    </message>
    <message>
        <source>Bpp12</source>
        <translation>12 位</translation>
    </message>
    <message>
        <source>Bpp14</source>
        <translation>14 位</translation>
    </message>
    <message>
        <source>Bpp16</source>
        <translation>16 位</translation>
    </message>
    <message>
        <source>Bpp20</source>
        <translation>20 位</translation>
    </message>
    <message>
        <source>Bpp24</source>
        <translation>24 位</translation>
    </message>
    <message>
        <source>Bpp30</source>
        <translation>30 位</translation>
    </message>
    <message>
        <source>Bpp32</source>
        <translation>32 位</translation>
    </message>
    <message>
        <source>Bpp36</source>
        <translation>36 位</translation>
    </message>
    <message>
        <source>Bpp48</source>
        <translation>48 位</translation>
    </message>
    <message>
        <source>Bpp64</source>
        <translation>64 位</translation>
    </message>
    <message>
        <source>Bpp96</source>
        <translation>96 位</translation>
    </message>
    <message>
        <source>BayerRG</source>
        <translation>Bayer RG排列</translation>
    </message>
    <message>
        <source>BayerGB</source>
        <translation>Bayer GB排列</translation>
    </message>
    <message>
        <source>BayerGR</source>
        <translation>Bayer GR排列</translation>
    </message>
    <message>
        <source>BayerBG</source>
        <translation>Bayer BG排列</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>全黑</translation>
    </message>
    <message>
        <source>White</source>
        <translation>全白</translation>
    </message>
    <message>
        <source>GreyHorizontalRamp</source>
        <translation>水平灰度渐变</translation>
    </message>
    <message>
        <source>GreyVerticalRamp</source>
        <translation>垂直灰度渐变</translation>
    </message>
    <message>
        <source>GreyDiagonalRamp</source>
        <translation>对角灰度渐变</translation>
    </message>
    <message>
        <source>GreyHorizontalRampMoving</source>
        <translation>移动水平灰度渐变</translation>
    </message>
    <message>
        <source>GreyVerticalRampMoving</source>
        <translation>移动垂直灰度渐变</translation>
    </message>
    <message>
        <source>GreyDiagonalRampMoving</source>
        <translation>移动对角灰度渐变</translation>
    </message>
    <message>
        <source>HorizontalLineMoving</source>
        <translation>移动水平线</translation>
    </message>
    <message>
        <source>VerticalLineMoving</source>
        <translation>移动垂直线</translation>
    </message>
    <message>
        <source>ColorBar</source>
        <translation>彩条</translation>
    </message>
    <message>
        <source>MonoBar</source>
        <translation>灰度条</translation>
    </message>
    <message>
        <source>MixedPattern</source>
        <translation>混合图案</translation>
    </message>
    <message>
        <source>DiagonalRamp</source>
        <translation>对角渐变</translation>
    </message>
    <message>
        <source>LineDuplication</source>
        <translation>行复制</translation>
    </message>
    <message>
        <source>Weave</source>
        <translation>交织</translation>
    </message>
    <message>
        <source>JPEG</source>
        <translation>JPEG压缩</translation>
    </message>
    <message>
        <source>JPEG2000</source>
        <translation>JPEG 2000压缩</translation>
    </message>
    <message>
        <source>H264</source>
        <translation>H.264压缩</translation>
    </message>
    <message>
        <source>FixBitrate</source>
        <translation>固定码率</translation>
    </message>
    <message>
        <source>FixQuality</source>
        <translation>固定质量</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>无损</translation>
    </message>
    <message>
        <source>BaselineStandard</source>
        <translation>基线标准</translation>
    </message>
    <message>
        <source>BaselineOptimized</source>
        <translation>基线优化</translation>
    </message>
    <message>
        <source>Progressive</source>
        <translation>渐进式</translation>
    </message>
    <message>
        <source>Geometry_1X_1Y</source>
        <translation>抽头布局 1X-1Y</translation>
    </message>
    <message>
        <source>Geometry_1X2_1Y</source>
        <translation>抽头布局 1X2-1Y</translation>
    </message>
    <message>
        <source>Geometry_1X2_1Y2</source>
        <translation>抽头布局 1X2-1Y2</translation>
    </message>
    <message>
        <source>Geometry_2X_1Y</source>
        <translation>抽头布局 2X-1Y</translation>
    </message>
    <message>
        <source>Geometry_2X_1Y2</source>
        <translation>抽头布局 2X-1Y2</translation>
    </message>
    <message>
        <source>Geometry_2XE_1Y</source>
        <translation>抽头布局 2XE-1Y</translation>
    </message>
    <message>
        <source>Geometry_2XE_1Y2</source>
        <translation>抽头布局 2XE-1Y2</translation>
    </message>
    <message>
        <source>Geometry_2XM_1Y</source>
        <translation>抽头布局 2XM-1Y</translation>
    </message>
    <message>
        <source>Geometry_2XM_1Y2</source>
        <translation>抽头布局 2XM-1Y2</translation>
    </message>
    <message>
        <source>Geometry_1X_1Y2</source>
        <translation>抽头布局 1X-1Y2</translation>
    </message>
    <message>
        <source>Geometry_1X_2YE</source>
        <translation>抽头布局 1X-2YE</translation>
    </message>
    <message>
        <source>Geometry_1X3_1Y</source>
        <translation>抽头布局 1X3-1Y</translation>
    </message>
    <message>
        <source>Geometry_3X_1Y</source>
        <translation>抽头布局 3X-1Y</translation>
    </message>
    <message>
        <source>Geometry_1X4_1Y</source>
        <translation>抽头布局 1X4-1Y</translation>
    </message>
    <message>
        <source>Geometry_4X_1Y</source>
        <translation>抽头布局 4X-1Y</translation>
    </message>
    <message>
        <source>Geometry_2X2_1Y</source>
        <translation>抽头布局 2X2-1Y</translation>
    </message>
    <message>
        <source>Geometry_2X2E_1Y</source>
        <translation>抽头布局 2X2E-1Y</translation>
    </message>
    <message>
        <source>Geometry_2X2M_1Y</source>
        <translation>抽头布局 2X2M-1Y</translation>
    </message>
    <message>
        <source>Geometry_1X2_2YE</source>
        <translation>抽头布局 1X2-2YE</translation>
    </message>
    <message>
        <source>Geometry_2X_2YE</source>
        <translation>抽头布局 2X-2YE</translation>
    </message>
    <message>
        <source>Geometry_2XE_2YE</source>
        <translation>抽头布局 2XE-2YE</translation>
    </message>
    <message>
        <source>Geometry_2XM_2YE</source>
        <translation>抽头布局 2XM-2YE</translation>
    </message>
    <message>
        <source>Geometry_1X8_1Y</source>
        <translation>抽头布局 1X8-1Y</translation>
    </message>
    <message>
        <source>Geometry_8X_1Y</source>
        <translation>抽头布局 8X-1Y</translation>
    </message>
    <message>
        <source>Geometry_1X10_1Y</source>
        <translation>抽头布局 1X10-1Y</translation>
    </message>
    <message>
        <source>Geometry_10X_1Y</source>
        <translation>抽头布局 10X-1Y</translation>
    </message>
    <message>
        <source>Geometry_4X2_1Y</source>
        <translation>抽头布局 4X2-1Y</translation>
    </message>
    <message>
        <source>Geometry_4X2E_1Y</source>
        <translation>抽头布局 4X2E-1Y</translation>
    </message>
    <message>
        <source>SingleFrame</source>
        <translation>单帧</translation>
    </message>
    <message>
        <source>MultiFrame</source>
        <translation>多帧</translation>
    </message>
    <message>
        <source>AcquisitionTriggerWait</source>
        <translation>等待采集触发</translation>
    </message>
    <message>
        <source>AcquisitionActive</source>
        <translation>采集进行中</translation>
    </message>
    <message>
        <source>AcquisitionTransfer</source>
        <translation>采集传输中</translation>
    </message>
    <message>
        <source>FrameTriggerWait</source>
        <translation>等待帧触发</translation>
    </message>
    <message>
        <source>FrameActive</source>
        <translation>帧进行中</translation>
    </message>
    <message>
        <source>FrameTransfer</source>
        <translation>帧传输中</translation>
    </message>
    <message>
        <source>ExposureActive</source>
        <translation>曝光进行中</translation>
    </message>
    <message>
        <source>AcquisitionEnd</source>
        <translation>采集结束</translation>
    </message>
    <message>
        <source>FrameStart</source>
        <translation>帧开始</translation>
    </message>
    <message>
        <source>FrameEnd</source>
        <translation>帧结束</translation>
    </message>
    <message>
        <source>FrameBurstStart</source>
        <translation>突发帧开始</translation>
    </message>
    <message>
        <source>FrameBurstEnd</source>
        <translation>突发帧结束</translation>
    </message>
    <message>
        <source>FrameBurstActive</source>
        <translation>突发帧进行中</translation>
    </message>
    <message>
        <source>LineStart</source>
        <translation>行开始</translation>
    </message>
    <message>
        <source>ExposureStart</source>
        <translation>曝光开始</translation>
    </message>
    <message>
        <source>ExposureEnd</source>
        <translation>曝光结束</translation>
    </message>
    <message>
        <source>Line0</source>
        <translation>线路0</translation>
    </message>
    <message>
        <source>Line1</source>
        <translation>线路1</translation>
    </message>
    <message>
        <source>Line2</source>
        <translation>线路2</translation>
    </message>
    <message>
        <source>Line3</source>
        <translation>线路3</translation>
    </message>
    <message>
        <source>Line4</source>
        <translation>线路4</translation>
    </message>
    <message>
        <source>Line5</source>
        <translation>线路5</translation>
    </message>
    <message>
        <source>Line6</source>
        <translation>线路6</translation>
    </message>
    <message>
        <source>Line7</source>
        <translation>线路7</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>软件</translation>
    </message>
    <message>
        <source>SoftwareSignal0</source>
        <translation>软件信号0</translation>
    </message>
    <message>
        <source>SoftwareSignal1</source>
        <translation>软件信号1</translation>
    </message>
    <message>
        <source>SoftwareSignal2</source>
        <translation>软件信号2</translation>
    </message>
    <message>
        <source>UserOutput0</source>
        <translation>用户输出0</translation>
    </message>
    <message>
        <source>UserOutput1</source>
        <translation>用户输出1</translation>
    </message>
    <message>
        <source>UserOutput2</source>
        <translation>用户输出2</translation>
    </message>
    <message>
        <source>UserOutput3</source>
        <translation>用户输出3</translation>
    </message>
    <message>
        <source>Counter0Start</source>
        <translation>计数器0开始</translation>
    </message>
    <message>
        <source>Counter0End</source>
        <translation>计数器0结束</translation>
    </message>
    <message>
        <source>Counter1Start</source>
        <translation>计数器1开始</translation>
    </message>
    <message>
        <source>Counter1End</source>
        <translation>计数器1结束</translation>
    </message>
    <message>
        <source>Timer0Start</source>
        <translation>定时器0开始</translation>
    </message>
    <message>
        <source>Timer0End</source>
        <translation>定时器0结束</translation>
    </message>
    <message>
        <source>Timer1Start</source>
        <translation>定时器1开始</translation>
    </message>
    <message>
        <source>Timer1End</source>
        <translation>定时器1结束</translation>
    </message>
    <message>
        <source>Encoder0</source>
        <translation>编码器0</translation>
    </message>
    <message>
        <source>Encoder1</source>
        <translation>编码器1</translation>
    </message>
    <message>
        <source>Action0</source>
        <translation>动作0</translation>
    </message>
    <message>
        <source>Action1</source>
        <translation>动作1</translation>
    </message>
    <message>
        <source>Action2</source>
        <translation>动作2</translation>
    </message>
    <message>
        <source>Action3</source>
        <translation>动作3</translation>
    </message>
    <message>
        <source>LinkTrigger0</source>
        <translation>链路触发0</translation>
    </message>
    <message>
        <source>LinkTrigger1</source>
        <translation>链路触发1</translation>
    </message>
    <message>
        <source>CC1</source>
        <translation>相机控制线CC1</translation>
    </message>
    <message>
        <source>CC2</source>
        <translation>相机控制线CC2</translation>
    </message>
    <message>
        <source>CC3</source>
        <translation>相机控制线CC3</translation>
    </message>
    <message>
        <source>CC4</source>
        <translation>相机控制线CC4</translation>
    </message>
    <message>
        <source>RisingEdge</source>
        <translation>上升沿</translation>
    </message>
    <message>
        <source>FallingEdge</source>
        <translation>下降沿</translation>
    </message>
    <message>
        <source>AnyEdge</source>
        <translation>任意沿</translation>
    </message>
    <message>
        <source>LevelHigh</source>
        <translation>高电平</translation>
    </message>
    <message>
        <source>LevelLow</source>
        <translation>低电平</translation>
    </message>
    <message>
        <source>ReadOut</source>
        <translation>读出期间</translation>
    </message>
    <message>
        <source>PreviousFrame</source>
        <translation>上一帧期间</translation>
    </message>
    <message>
        <source>PreviousLine</source>
        <translation>上一行期间</translation>
    </message>
    <message>
        <source>Timed</source>
        <translation>定时曝光</translation>
    </message>
    <message>
        <source>TriggerWidth</source>
        <translation>触发宽度曝光</translation>
    </message>
    <message>
        <source>TriggerControlled</source>
        <translation>触发控制曝光</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>标准</translation>
    </message>
    <message>
        <source>UltraShort</source>
        <translation>超短曝光</translation>
    </message>
    <message>
        <source>Common</source>
        <translation>公共</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>红</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>绿</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>青</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>品红</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>黄</translation>
    </message>
    <message>
        <source>Infrared</source>
        <translation>红外</translation>
    </message>
    <message>
        <source>Ultraviolet</source>
        <translation>紫外</translation>
    </message>
    <message>
        <source>Stage1</source>
        <translation>阶段1</translation>
    </message>
    <message>
        <source>Stage2</source>
        <translation>阶段2</translation>
    </message>
    <message>
        <source>AOI1</source>
        <translation>自动功能区域1</translation>
    </message>
    <message>
        <source>AOI2</source>
        <translation>自动功能区域2</translation>
    </message>
    <message>
        <source>PresetSoft</source>
        <translation>预设柔和</translation>
    </message>
    <message>
        <source>PresetMedium</source>
        <translation>预设中等</translation>
    </message>
    <message>
        <source>PresetAggressive</source>
        <translation>预设强烈</translation>
    </message>
    <message>
        <source>UserDefined</source>
        <translation>用户自定义</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>亮度Y</translation>
    </message>
    <message>
        <source>U</source>
        <translation>色度U</translation>
    </message>
    <message>
        <source>V</source>
        <translation>色度V</translation>
    </message>
    <message>
        <source>Tap1</source>
        <translation>抽头1</translation>
    </message>
    <message>
        <source>Tap2</source>
        <translation>抽头2</translation>
    </message>
    <message>
        <source>AnalogAll</source>
        <translation>模拟全部</translation>
    </message>
    <message>
        <source>AnalogRed</source>
        <translation>模拟红</translation>
    </message>
    <message>
        <source>AnalogGreen</source>
        <translation>模拟绿</translation>
    </message>
    <message>
        <source>AnalogBlue</source>
        <translation>模拟蓝</translation>
    </message>
    <message>
        <source>DigitalAll</source>
        <translation>数字全部</translation>
    </message>
    <message>
        <source>DigitalRed</source>
        <translation>数字红</translation>
    </message>
    <message>
        <source>DigitalGreen</source>
        <translation>数字绿</translation>
    </message>
    <message>
        <source>DigitalBlue</source>
        <translation>数字蓝</translation>
    </message>
    <message>
        <source>sRGB</source>
        <translation>sRGB曲线</translation>
    </message>
    <message>
        <source>User</source>
        <translation>用户自定义曲线</translation>
    </message>
    <message>
        <source>Luminance</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>RGBtoRGB</source>
        <translation>RGB转RGB</translation>
    </message>
    <message>
        <source>RGBtoYUV</source>
        <translation>RGB转YUV</translation>
    </message>
    <message>
        <source>YUVtoRGB</source>
        <translation>YUV转RGB</translation>
    </message>
    <message>
        <source>Gain00</source>
        <translation>系数00</translation>
    </message>
    <message>
        <source>Gain01</source>
        <translation>系数01</translation>
    </message>
    <message>
        <source>Gain02</source>
        <translation>系数02</translation>
    </message>
    <message>
        <source>Gain10</source>
        <translation>系数10</translation>
    </message>
    <message>
        <source>Gain11</source>
        <translation>系数11</translation>
    </message>
    <message>
        <source>Gain12</source>
        <translation>系数12</translation>
    </message>
    <message>
        <source>Gain20</source>
        <translation>系数20</translation>
    </message>
    <message>
        <source>Gain21</source>
        <translation>系数21</translation>
    </message>
    <message>
        <source>Gain22</source>
        <translation>系数22</translation>
    </message>
    <message>
        <source>Offset0</source>
        <translation>偏移0</translation>
    </message>
    <message>
        <source>Offset1</source>
        <translation>偏移1</translation>
    </message>
    <message>
        <source>Offset2</source>
        <translation>偏移2</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>输入</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>输出</translation>
    </message>
    <message>
        <source>UserOutput4</source>
        <translation>用户输出4</translation>
    </message>
    <message>
        <source>UserOutput5</source>
        <translation>用户输出5</translation>
    </message>
    <message>
        <source>UserOutput6</source>
        <translation>用户输出6</translation>
    </message>
    <message>
        <source>UserOutput7</source>
        <translation>用户输出7</translation>
    </message>
    <message>
        <source>Counter0Active</source>
        <translation>计数器0有效</translation>
    </message>
    <message>
        <source>Counter1Active</source>
        <translation>计数器1有效</translation>
    </message>
    <message>
        <source>Timer0Active</source>
        <translation>定时器0有效</translation>
    </message>
    <message>
        <source>Timer1Active</source>
        <translation>定时器1有效</translation>
    </message>
    <message>
        <source>Stream0TransferActive</source>
        <translation>数据流0传输中</translation>
    </message>
    <message>
        <source>Stream0TransferOverflow</source>
        <translation>数据流0传输溢出</translation>
    </message>
    <message>
        <source>StrobeSignal</source>
        <translation>闪光灯信号</translation>
    </message>
    <message>
        <source>NoConnect</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>TriState</source>
        <translation>三态</translation>
    </message>
    <message>
        <source>TTL</source>
        <translation>TTL电平</translation>
    </message>
    <message>
        <source>LVDS</source>
        <translation>LVDS差分</translation>
    </message>
    <message>
        <source>RS422</source>
        <translation>RS-422差分</translation>
    </message>
    <message>
        <source>OptoCoupled</source>
        <translation>光耦隔离</translation>
    </message>
    <message>
        <source>OpenDrain</source>
        <translation>开漏</translation>
    </message>
    <message>
        <source>OpenSource</source>
        <translation>开源极</translation>
    </message>
    <message>
        <source>CurrentSource</source>
        <translation>电流源</translation>
    </message>
    <message>
        <source>DifferentialInput</source>
        <translation>差分输入</translation>
    </message>
    <message>
        <source>SingleEndedInput</source>
        <translation>单端输入</translation>
    </message>
    <message>
        <source>Counter0</source>
        <translation>计数器0</translation>
    </message>
    <message>
        <source>Counter1</source>
        <translation>计数器1</translation>
    </message>
    <message>
        <source>Counter2</source>
        <translation>计数器2</translation>
    </message>
    <message>
        <source>Counter3</source>
        <translation>计数器3</translation>
    </message>
    <message>
        <source>AcquisitionTrigger</source>
        <translation>采集触发</translation>
    </message>
    <message>
        <source>FrameTrigger</source>
        <translation>帧触发</translation>
    </message>
    <message>
        <source>LineEnd</source>
        <translation>行结束</translation>
    </message>
    <message>
        <source>CounterTrigger</source>
        <translation>计数器触发</translation>
    </message>
    <message>
        <source>CounterIdle</source>
        <translation>空闲</translation>
    </message>
    <message>
        <source>CounterTriggerWait</source>
        <translation>等待触发</translation>
    </message>
    <message>
        <source>CounterActive</source>
        <translation>计数中</translation>
    </message>
    <message>
        <source>CounterCompleted</source>
        <translation>已完成</translation>
    </message>
    <message>
        <source>CounterOverflow</source>
        <translation>溢出</translation>
    </message>
    <message>
        <source>Timer0</source>
        <translation>定时器0</translation>
    </message>
    <message>
        <source>Timer1</source>
        <translation>定时器1</translation>
    </message>
    <message>
        <source>Timer2</source>
        <translation>定时器2</translation>
    </message>
    <message>
        <source>Timer3</source>
        <translation>定时器3</translation>
    </message>
    <message>
        <source>TimerIdle</source>
        <translation>定时器空闲</translation>
    </message>
    <message>
        <source>TimerTriggerWait</source>
        <translation>定时器等待触发</translation>
    </message>
    <message>
        <source>TimerActive</source>
        <translation>定时器运行中</translation>
    </message>
    <message>
        <source>TimerCompleted</source>
        <translation>定时器已完成</translation>
    </message>
    <message>
        <source>Encoder2</source>
        <translation>编码器2</translation>
    </message>
    <message>
        <source>FourPhase</source>
        <translation>四相计数</translation>
    </message>
    <message>
        <source>HighResolution</source>
        <translation>高分辨率</translation>
    </message>
    <message>
        <source>PositionUp</source>
        <translation>正向位置</translation>
    </message>
    <message>
        <source>PositionDown</source>
        <translation>反向位置</translation>
    </message>
    <message>
        <source>DirectionUp</source>
        <translation>正向运动</translation>
    </message>
    <message>
        <source>DirectionDown</source>
        <translation>反向运动</translation>
    </message>
    <message>
        <source>Motion</source>
        <translation>任意运动</translation>
    </message>
    <message>
        <source>EncoderUp</source>
        <translation>正向</translation>
    </message>
    <message>
        <source>EncoderDown</source>
        <translation>反向</translation>
    </message>
    <message>
        <source>EncoderIdle</source>
        <translation>空闲</translation>
    </message>
    <message>
        <source>EncoderStatic</source>
        <translation>静止</translation>
    </message>
    <message>
        <source>SoftwareSignal3</source>
        <translation>软件信号3</translation>
    </message>
    <message>
        <source>AcquisitionTransferStart</source>
        <translation>采集传输开始</translation>
    </message>
    <message>
        <source>AcquisitionTransferEnd</source>
        <translation>采集传输结束</translation>
    </message>
    <message>
        <source>AcquisitionError</source>
        <translation>采集错误</translation>
    </message>
    <message>
        <source>FrameTriggerMissed</source>
        <translation>帧触发丢失</translation>
    </message>
    <message>
        <source>FrameTransferStart</source>
        <translation>帧传输开始</translation>
    </message>
    <message>
        <source>FrameTransferEnd</source>
        <translation>帧传输结束</translation>
    </message>
    <message>
        <source>Stream0TransferStart</source>
        <translation>数据流0传输开始</translation>
    </message>
    <message>
        <source>Stream0TransferEnd</source>
        <translation>数据流0传输结束</translation>
    </message>
    <message>
        <source>SequencerSetChange</source>
        <translation>序列器集切换</translation>
    </message>
    <message>
        <source>Encoder0Stopped</source>
        <translation>编码器0停止</translation>
    </message>
    <message>
        <source>Encoder0Restarted</source>
        <translation>编码器0重新启动</translation>
    </message>
    <message>
        <source>Line0RisingEdge</source>
        <translation>线路0上升沿</translation>
    </message>
    <message>
        <source>Line0FallingEdge</source>
        <translation>线路0下降沿</translation>
    </message>
    <message>
        <source>Line1RisingEdge</source>
        <translation>线路1上升沿</translation>
    </message>
    <message>
        <source>Line1FallingEdge</source>
        <translation>线路1下降沿</translation>
    </message>
    <message>
        <source>ActionLate</source>
        <translation>动作命令超时</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Test</source>
        <translation>测试</translation>
    </message>
    <message>
        <source>PrimaryApplicationSwitch</source>
        <translation>主控应用切换</translation>
    </message>
    <message>
        <source>LinkSpeedChange</source>
        <translation>链路速率变化</translation>
    </message>
    <message>
        <source>GigEVisionEvent</source>
        <translation>GigE Vision事件</translation>
    </message>
    <message>
        <source>GigEVisionExtendedIDEvent</source>
        <translation>GigE Vision扩展ID事件</translation>
    </message>
    <message>
        <source>UserSet0</source>
        <translation>用户集0</translation>
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
        <source>UserSet3</source>
        <translation>用户集3</translation>
    </message>
    <message>
        <source>UserSet4</source>
        <translation>用户集4</translation>
    </message>
    <message>
        <source>UserData</source>
        <translation>用户数据</translation>
    </message>
    <message>
        <source>LUTLuminance</source>
        <translation>亮度查找表</translation>
    </message>
    <message>
        <source>LUTRed</source>
        <translation>红色查找表</translation>
    </message>
    <message>
        <source>LUTGreen</source>
        <translation>绿色查找表</translation>
    </message>
    <message>
        <source>LUTBlue</source>
        <translation>蓝色查找表</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>固件</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭文件</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>读取</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>写入</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>ReadWrite</source>
        <translation>读写</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>Failure</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation>溢出</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>图像</translation>
    </message>
    <message>
        <source>FrameID</source>
        <translation>帧号</translation>
    </message>
    <message>
        <source>CRC</source>
        <translation>CRC校验</translation>
    </message>
    <message>
        <source>OpenAccess</source>
        <translation>开放访问</translation>
    </message>
    <message>
        <source>ExclusiveAccess</source>
        <translation>独占访问</translation>
    </message>
    <message>
        <source>ControlAccess</source>
        <translation>控制访问</translation>
    </message>
    <message>
        <source>ControlAccessSwitchoverActive</source>
        <translation>可切换的控制访问</translation>
    </message>
    <message>
        <source>PersistentIP</source>
        <translation>静态IP</translation>
    </message>
    <message>
        <source>DHCP</source>
        <translation>DHCP动态分配</translation>
    </message>
    <message>
        <source>LLA</source>
        <translation>链路本地地址</translation>
    </message>
    <message>
        <source>ForceIP</source>
        <translation>强制IP</translation>
    </message>
    <message>
        <source>UserDefinedName</source>
        <translation>用户自定义名称</translation>
    </message>
    <message>
        <source>SerialNumber</source>
        <translation>序列号</translation>
    </message>
    <message>
        <source>HeartbeatDisable</source>
        <translation>禁用心跳</translation>
    </message>
    <message>
        <source>LinkSpeed</source>
        <translation>链路速率</translation>
    </message>
    <message>
        <source>CCPApplicationSocket</source>
        <translation>控制通道应用端口</translation>
    </message>
    <message>
        <source>ManifestTable</source>
        <translation>清单表</translation>
    </message>
    <message>
        <source>TestData</source>
        <translation>测试数据</translation>
    </message>
    <message>
        <source>DiscoveryAckDelay</source>
        <translation>发现应答延迟</translation>
    </message>
    <message>
        <source>DiscoveryAckDelayWritable</source>
        <translation>发现应答延迟可写</translation>
    </message>
    <message>
        <source>ExtendedStatusCodes</source>
        <translation>扩展状态码</translation>
    </message>
    <message>
        <source>PrimaryApplicationSwitchover</source>
        <translation>主控应用切换</translation>
    </message>
    <message>
        <source>UnconditionalAction</source>
        <translation>无条件动作命令</translation>
    </message>
    <message>
        <source>ScheduledAction</source>
        <translation>定时动作命令</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>动作命令</translation>
    </message>
    <message>
        <source>PendingAck</source>
        <translation>等待应答</translation>
    </message>
    <message>
        <source>EventData</source>
        <translation>带数据事件</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>PacketResend</source>
        <translation>丢包重传</translation>
    </message>
    <message>
        <source>WriteMem</source>
        <translation>写内存</translation>
    </message>
    <message>
        <source>CommandsConcatenation</source>
        <translation>命令合并</translation>
    </message>
    <message>
        <source>IPConfigurationLLA</source>
        <translation>LLA配置</translation>
    </message>
    <message>
        <source>IPConfigurationDHCP</source>
        <translation>DHCP配置</translation>
    </message>
    <message>
        <source>IPConfigurationPersistentIP</source>
        <translation>静态IP配置</translation>
    </message>
    <message>
        <source>StreamChannelSourceSocket</source>
        <translation>流通道源端口</translation>
    </message>
    <message>
        <source>MessageChannelSourceSocket</source>
        <translation>消息通道源端口</translation>
    </message>
    <message>
        <source>SingleLink</source>
        <translation>单链路</translation>
    </message>
    <message>
        <source>MultiLink</source>
        <translation>多链路</translation>
    </message>
    <message>
        <source>DynamicLAG</source>
        <translation>动态链路聚合</translation>
    </message>
    <message>
        <source>Initializing</source>
        <translation>初始化中</translation>
    </message>
    <message>
        <source>Faulty</source>
        <translation>故障</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>已禁用</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>监听</translation>
    </message>
    <message>
        <source>PreMaster</source>
        <translation>预主时钟</translation>
    </message>
    <message>
        <source>Master</source>
        <translation>主时钟</translation>
    </message>
    <message>
        <source>Passive</source>
        <translation>被动</translation>
    </message>
    <message>
        <source>Uncalibrated</source>
        <translation>未校准</translation>
    </message>
    <message>
        <source>Slave</source>
        <translation>从时钟</translation>
    </message>
    <message>
        <source>Within25ns</source>
        <translation>25纳秒以内</translation>
    </message>
    <message>
        <source>Within100ns</source>
        <translation>100纳秒以内</translation>
    </message>
    <message>
        <source>Within250ns</source>
        <translation>250纳秒以内</translation>
    </message>
    <message>
        <source>Within1us</source>
        <translation>1微秒以内</translation>
    </message>
    <message>
        <source>Within2p5us</source>
        <translation>2.5微秒以内</translation>
    </message>
    <message>
        <source>Within10us</source>
        <translation>10微秒以内</translation>
    </message>
    <message>
        <source>Within25us</source>
        <translation>25微秒以内</translation>
    </message>
    <message>
        <source>Within100us</source>
        <translation>100微秒以内</translation>
    </message>
    <message>
        <source>Within250us</source>
        <translation>250微秒以内</translation>
    </message>
    <message>
        <source>Within1ms</source>
        <translation>1毫秒以内</translation>
    </message>
    <message>
        <source>Within2p5ms</source>
        <translation>2.5毫秒以内</translation>
    </message>
    <message>
        <source>Within10ms</source>
        <translation>10毫秒以内</translation>
    </message>
    <message>
        <source>Within25ms</source>
        <translation>25毫秒以内</translation>
    </message>
    <message>
        <source>Within100ms</source>
        <translation>100毫秒以内</translation>
    </message>
    <message>
        <source>Within250ms</source>
        <translation>250毫秒以内</translation>
    </message>
    <message>
        <source>Within1s</source>
        <translation>1秒以内</translation>
    </message>
    <message>
        <source>Within10s</source>
        <translation>10秒以内</translation>
    </message>
    <message>
        <source>GreaterThan10s</source>
        <translation>大于10秒</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>已锁定</translation>
    </message>
    <message>
        <source>NegativeSixdB</source>
        <translation>增益 -6 dB</translation>
    </message>
    <message>
        <source>NegativeThreedB</source>
        <translation>增益 -3 dB</translation>
    </message>
    <message>
        <source>ZerodB</source>
        <translation>增益 0 dB</translation>
    </message>
    <message>
        <source>ThreedB</source>
        <translation>增益 +3 dB</translation>
    </message>
    <message>
        <source>SixdB</source>
        <translation>增益 +6 dB</translation>
    </message>
    <message>
        <source>DCIris</source>
        <translation>DC光圈</translation>
    </message>
    <message>
        <source>PIris</source>
        <translation>P光圈</translation>
    </message>
    <message>
        <source>VideoIris</source>
        <translation>视频光圈</translation>
    </message>
    <message>
        <source>Strobe</source>
        <translation>频闪</translation>
    </message>
    <message>
        <source>UserLed0</source>
        <translation>用户指示灯0</translation>
    </message>
    <message>
        <source>UserLed1</source>
        <translation>用户指示灯1</translation>
    </message>
    <message>
        <source>UserLed2</source>
        <translation>用户指示灯2</translation>
    </message>
    <message>
        <source>UserLed3</source>
        <translation>用户指示灯3</translation>
    </message>
</context>
</TS>
