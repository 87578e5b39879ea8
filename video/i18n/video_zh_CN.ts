<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>Gliv::CQtDisplayWndEx</name>
    <message>
        <source>Zoom in</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Fit to window</source>
        <translation>适应窗口</translation>
    </message>
    <message>
        <source>Actual size (100 %)</source>
        <translation>实际大小 (100 %)</translation>
    </message>
    <message>
        <source>Centre image</source>
        <translation>图像居中</translation>
    </message>
</context>
<context>
    <name>CVideoControlBar</name>
    <message>
        <source>Start acquisition</source>
        <translation>开始采集</translation>
    </message>
    <message>
        <source>Stop acquisition</source>
        <translation>停止采集</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Fit to window</source>
        <translation>适应窗口</translation>
    </message>
    <message>
        <source>Actual size (100 %)</source>
        <translation>实际大小 (100 %)</translation>
    </message>
</context>
<context>
    <name>CVideoForm</name>
    <message>
        <source>Camera</source>
        <translation>相机</translation>
    </message>
    <message>
        <source>Connecting...</source>
        <translation>正在连接...</translation>
    </message>
    <message>
        <source>Disconnecting...</source>
        <translation>正在断开...</translation>
    </message>
    <message>
        <source>No camera</source>
        <translation>无相机</translation>
    </message>
    <message>
        <source>Starting the acquisition failed.</source>
        <translation>开始采集失败。</translation>
    </message>
</context>
<context>
    <name>CVideoManagerForm</name>
    <message>
        <source>30 FPS</source>
        <translation>30 FPS</translation>
    </message>
    <message>
        <source>60 FPS</source>
        <translation>60 FPS</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>禁用</translation>
    </message>
    <message>
        <source>Bayer demosaicing</source>
        <translation>Bayer 插值</translation>
    </message>
    <message>
        <source>Bilinear</source>
        <translation>双线性</translation>
    </message>
    <message>
        <source>Edge aware</source>
        <translation>边缘感知</translation>
    </message>
    <message>
        <source>Variable number of gradients</source>
        <translation>可变梯度数</translation>
    </message>
    <message>
        <source>Crosshair color...</source>
        <translation>十字线颜色...</translation>
    </message>
    <message>
        <source>Delete ROI</source>
        <translation>删除 ROI</translation>
    </message>
    <message>
        <source>Display ROI</source>
        <translation>显示 ROI</translation>
    </message>
    <message>
        <source>Display chunk data</source>
        <translation>显示 Chunk 数据</translation>
    </message>
    <message>
        <source>Display crosshair</source>
        <translation>显示十字线</translation>
    </message>
    <message>
        <source>Display options</source>
        <translation>显示选项</translation>
    </message>
    <message>
        <source>Display rate</source>
        <translation>显示帧率</translation>
    </message>
    <message>
        <source>Draw ROI</source>
        <translation>绘制 ROI</translation>
    </message>
    <message>
        <source>ROI color...</source>
        <translation>ROI 颜色...</translation>
    </message>
    <message>
        <source>One view</source>
        <translation>单画面</translation>
    </message>
    <message>
        <source>Two views</source>
        <translation>两画面</translation>
    </message>
    <message>
        <source>Four views</source>
        <translation>四画面</translation>
    </message>
    <message>
        <source>Nine views</source>
        <translation>九画面</translation>
    </message>
    <message>
        <source>Sixteen views</source>
        <translation>十六画面</translation>
    </message>
    <message>
        <source>Full screen (Esc to leave)</source>
        <translation>全屏 (按 Esc 退出)</translation>
    </message>
    <message>
        <source>Save Config failed.</source>
        <translation>保存配置失败。</translation>
    </message>
</context>
<context>
    <name>CVideoStatusBar</name>
    <message>
        <source>Error: %1 (%2)</source>
        <translation>错误: %1 (%2)</translation>
    </message>
    <message>
        <source>RGB (%1, %2, %3)</source>
        <translation>RGB (%1, %2, %3)</translation>
    </message>
    <message>
        <source>Raw %1</source>
        <translation>原始值 %1</translation>
    </message>
    <message>
        <source>Rx %1 fps  Disp %2 fps  %3 Mbps  Frames %4</source>
        <translation>接收 %1 fps  显示 %2 fps  %3 Mbps  帧数 %4</translation>
    </message>
    <message>
        <source>X %1  Y %2</source>
        <translation>X %1  Y %2</translation>
    </message>
</context>
<context>
    <name>CVideoTitleBar</name>
    <message>
        <source>Maximize</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>还原</translation>
    </message>
</context>
</TS>
