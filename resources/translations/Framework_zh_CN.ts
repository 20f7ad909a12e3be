<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>ComponentState</name>
    <message>
        <source>Starting</source>
        <translation>正在启动</translation>
    </message>
    <message>
        <source>The component is starting.</source>
        <translation>组件正在启动。</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>The component is at work.</source>
        <translation>组件正在工作。</translation>
    </message>
    <message>
        <source>Restarting</source>
        <translation>正在重启</translation>
    </message>
    <message>
        <source>The component ended and will be started again.</source>
        <translation>组件已结束，将重新启动。</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>The component ended too often and is not started again.</source>
        <translation>组件结束次数过多，不再自动启动。</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>The component is not running.</source>
        <translation>组件未运行。</translation>
    </message>
</context>
<context>
    <name>DeviceForm</name>
    <message>
        <source>A name has at most 64 characters.</source>
        <translation>名称最多 64 个字符。</translation>
    </message>
    <message>
        <source>Another device has this name.</source>
        <translation>另一台设备已使用此名称。</translation>
    </message>
    <message>
        <source>Enter a host name or an IP address.</source>
        <translation>请输入主机名或 IP 地址。</translation>
    </message>
    <message>
        <source>This is neither a host name nor an IP address.</source>
        <translation>这不是有效的主机名或 IP 地址。</translation>
    </message>
    <message>
        <source>Enter the user of the device.</source>
        <translation>请输入设备用户名。</translation>
    </message>
</context>
<context>
    <name>DeviceText</name>
    <message>
        <source>Device</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>Encoder</source>
        <translation>编码器</translation>
    </message>
    <message>
        <source>Recorder</source>
        <translation>录像机</translation>
    </message>
    <message>
        <source>Storage server</source>
        <translation>存储服务器</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>在线</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>离线</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>正在连接</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>正在录像</translation>
    </message>
    <message>
        <source>Not supported by its device</source>
        <translation>其设备不支持</translation>
    </message>
</context>
<context>
    <name>Journal</name>
    <message>
        <source>Alarm</source>
        <translation>报警</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>User</source>
        <translation>用户</translation>
    </message>
    <message>
        <source>Component</source>
        <translation>组件</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>窗口</translation>
    </message>
    <message>
        <source>System</source>
        <translation>系统</translation>
    </message>
</context>
<context>
    <name>Permissions</name>
    <message>
        <source>Live view</source>
        <translation>实时预览</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>回放</translation>
    </message>
    <message>
        <source>Clips and pictures</source>
        <translation>视频片段和图片</translation>
    </message>
    <message>
        <source>Recording schedules</source>
        <translation>录像计划</translation>
    </message>
    <message>
        <source>Storage plans</source>
        <translation>存储计划</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>Broadcast</source>
        <translation>广播</translation>
    </message>
    <message>
        <source>Alarm outputs</source>
        <translation>报警输出</translation>
    </message>
    <message>
        <source>Wipers</source>
        <translation>雨刷</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Users</source>
        <translation>用户</translation>
    </message>
</context>
<context>
    <name>Sentences</name>
    <message>
        <source>The component was started.</source>
        <translation>组件已启动。</translation>
    </message>
    <message>
        <source>The component has joined.</source>
        <translation>组件已接入。</translation>
    </message>
    <message>
        <source>The component is ready.</source>
        <translation>组件已就绪。</translation>
    </message>
    <message>
        <source>The component has left.</source>
        <translation>组件已断开。</translation>
    </message>
    <message>
        <source>The component was asked to end.</source>
        <translation>已请求组件结束。</translation>
    </message>
    <message>
        <source>The component is not started again.</source>
        <translation>不再启动组件。</translation>
    </message>
    <message>
        <source>The component ended with exit code %1. It is started again in %2 s.</source>
        <translation>组件已结束，退出代码 %1。%2 秒后重新启动。</translation>
    </message>
    <message>
        <source>The component ended with signal %1. It is started again in %2 s.</source>
        <translation>组件因信号 %1 结束。%2 秒后重新启动。</translation>
    </message>
    <message>
        <source>The component ended with %1. It was started %2 times within a minute and is given up.</source>
        <translation>组件已结束（%1）。一分钟内已启动 %2 次，不再重试。</translation>
    </message>
    <message>
        <source>The component ended with exit code %1.</source>
        <translation>组件已结束，退出代码 %1。</translation>
    </message>
    <message>
        <source>The component ended with signal %1.</source>
        <translation>组件因信号 %1 结束。</translation>
    </message>
    <message>
        <source>The component cannot be started: %1.</source>
        <translation>无法启动组件：%1。</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; was added.</source>
        <translation>设备“%1”已添加。</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; was changed.</source>
        <translation>设备“%1”已更改。</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; was removed.</source>
        <translation>设备“%1”已移除。</translation>
    </message>
    <message>
        <source>Test alarm of %1</source>
        <translation>来自 %1 的测试报警</translation>
    </message>
    <message>
        <source>Changed settings: %1.</source>
        <translation>已更改的设置：%1。</translation>
    </message>
    <message>
        <source>The users were changed.</source>
        <translation>用户已更改。</translation>
    </message>
    <message>
        <source>User &quot;%1&quot; took over from &quot;%2&quot;.</source>
        <translation>用户“%1”已接替“%2”。</translation>
    </message>
    <message>
        <source>The address and port belong to another device.</source>
        <translation>该地址和端口属于另一台设备。</translation>
    </message>
    <message>
        <source>The devices cannot be saved.</source>
        <translation>无法保存设备。</translation>
    </message>
    <message>
        <source>There are too many devices.</source>
        <translation>设备过多。</translation>
    </message>
    <message>
        <source>The users cannot be saved.</source>
        <translation>无法保存用户。</translation>
    </message>
    <message>
        <source>There are too many users.</source>
        <translation>用户过多。</translation>
    </message>
    <message>
        <source>Somebody must be allowed to manage users.</source>
        <translation>必须至少有一人可以管理用户。</translation>
    </message>
    <message>
        <source>The user is at work.</source>
        <translation>该用户正在使用中。</translation>
    </message>
    <message>
        <source>skin</source>
        <translation>皮肤</translation>
    </message>
    <message>
        <source>language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>edition</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>date format</source>
        <translation>日期格式</translation>
    </message>
    <message>
        <source>time format</source>
        <translation>时间格式</translation>
    </message>
    <message>
        <source>folder of clips</source>
        <translation>视频片段文件夹</translation>
    </message>
    <message>
        <source>folder of pictures</source>
        <translation>图片文件夹</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; is online.</source>
        <translation>设备“%1”在线。</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; is offline.</source>
        <translation>设备“%1”离线。</translation>
    </message>
    <message>
        <source>The user name must have at most 127 bytes.</source>
        <translation>用户名最多 127 字节。</translation>
    </message>
    <message>
        <source>The password must have at most 127 bytes.</source>
        <translation>密码最多 127 字节。</translation>
    </message>
</context>
<context>
    <name>Windows</name>
    <message>
        <source>Live View</source>
        <translation>实时预览</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>回放</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>录像</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>System</source>
        <translation>系统</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>首页</translation>
    </message>
    <message>
        <source>Main View</source>
        <translation>主视图</translation>
    </message>
    <message>
        <source>Auxiliary Screen</source>
        <translation>辅助屏幕</translation>
    </message>
    <message>
        <source>Second Live View</source>
        <translation>第二实时画面</translation>
    </message>
    <message>
        <source>Third Live View</source>
        <translation>第三实时画面</translation>
    </message>
    <message>
        <source>Fourth Live View</source>
        <translation>第四实时画面</translation>
    </message>
    <message>
        <source>Remote Playback</source>
        <translation>远程回放</translation>
    </message>
    <message>
        <source>Video Files</source>
        <translation>视频文件</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Recording Schedule</source>
        <translation>录像计划</translation>
    </message>
    <message>
        <source>Storage Plan</source>
        <translation>存储计划</translation>
    </message>
    <message>
        <source>Device List</source>
        <translation>设备列表</translation>
    </message>
    <message>
        <source>Encoding Devices</source>
        <translation>编码设备</translation>
    </message>
    <message>
        <source>Streaming Media Servers</source>
        <translation>流媒体服务器</translation>
    </message>
    <message>
        <source>Voice Broadcast</source>
        <translation>语音广播</translation>
    </message>
    <message>
        <source>Alarm Outputs</source>
        <translation>报警输出</translation>
    </message>
    <message>
        <source>Wiper Control</source>
        <translation>雨刷控制</translation>
    </message>
    <message>
        <source>Widget Gallery</source>
        <translation>控件展示</translation>
    </message>
    <message>
        <source>Notification Centre</source>
        <translation>通知中心</translation>
    </message>
    <message>
        <source>Operation Log</source>
        <translation>操作日志</translation>
    </message>
    <message>
        <source>Users</source>
        <translation>用户</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Local Files</source>
        <translation>本地文件</translation>
    </message>
</context>
<context>
    <name>framework::CCameraBox</name>
    <message>
        <source>Camera, group or identifier</source>
        <translation>摄像机、分组或标识符</translation>
    </message>
</context>
<context>
    <name>framework::CComponentTab</name>
    <message>
        <source>Waiting for the component…</source>
        <translation>正在等待组件…</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>The component ended. It is being restarted…</source>
        <translation>组件已结束，正在重新启动…</translation>
    </message>
    <message>
        <source>Your tabs come back by themselves.</source>
        <translation>标签页会自动恢复。</translation>
    </message>
    <message>
        <source>The component is not running.</source>
        <translation>组件未运行。</translation>
    </message>
    <message>
        <source>Start the component</source>
        <translation>启动组件</translation>
    </message>
    <message>
        <source>The component did not answer in time, or it cannot show this page.</source>
        <translation>组件未及时响应，或无法显示此页面。</translation>
    </message>
    <message>
        <source>It ended too often. The operation log has the details.</source>
        <translation>组件退出次数过多。详情请查看操作日志。</translation>
    </message>
</context>
<context>
    <name>framework::CDeviceDetails</name>
    <message>
        <source>Try now</source>
        <translation>立即重试</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>User</source>
        <translation>用户</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>型号</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>序列号</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>固件</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>通道</translation>
    </message>
    <message>
        <source>Alarm inputs and outputs</source>
        <translation>报警输入和输出</translation>
    </message>
    <message>
        <source>%1, encrypted</source>
        <translation>%1，已加密</translation>
    </message>
    <message>
        <source>%1, online %2</source>
        <translation>%1，在线 %2</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 和 %2</translation>
    </message>
    <message>
        <source>Channel %1: %2</source>
        <translation>通道 %1：%2</translation>
    </message>
</context>
<context>
    <name>framework::CDeviceDialog</name>
    <message>
        <source>Add device</source>
        <translation>添加设备</translation>
    </message>
    <message>
        <source>Edit device</source>
        <translation>编辑设备</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message>
        <source>Host name or IP address</source>
        <translation>主机名或 IP 地址</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>User</source>
        <translation>用户</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>The device does not exist any more.</source>
        <translation>该设备已不存在。</translation>
    </message>
    <message>
        <source>Encrypted connection (TLS)</source>
        <translation>加密连接 (TLS)</translation>
    </message>
    <message>
        <source>Empty: the name that the device has</source>
        <translation>留空则使用设备自己的名称</translation>
    </message>
    <message>
        <source>Connecting to the device…</source>
        <translation>正在连接设备…</translation>
    </message>
    <message>
        <source>Add anyway</source>
        <translation>仍然添加</translation>
    </message>
    <message>
        <source>Save anyway</source>
        <translation>仍然保存</translation>
    </message>
</context>
<context>
    <name>framework::CDevicesPage</name>
    <message>
        <source>Cameras, recorders and storage servers that the client works with.</source>
        <translation>客户端使用的摄像机、录像机和存储服务器。</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Add device</source>
        <translation>添加设备</translation>
    </message>
    <message>
        <source>Remove the device &quot;%1&quot; with its channels?</source>
        <translation>要移除设备“%1”及其通道吗？</translation>
    </message>
    <message>
        <source>Remove device</source>
        <translation>移除设备</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>编辑…</translation>
    </message>
    <message>
        <source>Remove…</source>
        <translation>移除…</translation>
    </message>
    <message>
        <source>Simulate an alarm</source>
        <translation>模拟报警</translation>
    </message>
    <message>
        <source>No device chosen</source>
        <translation>未选择设备</translation>
    </message>
    <message>
        <source>Choose a device or a camera to see more about it.</source>
        <translation>选择设备或摄像机以查看详细信息。</translation>
    </message>
    <message>
        <source>Try now</source>
        <translation>立即重试</translation>
    </message>
</context>
<context>
    <name>framework::CHomePage</name>
    <message>
        <source>Your devices and the client at a glance.</source>
        <translation>设备与客户端概览。</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>重新启动</translation>
    </message>
    <message>
        <source>Video component</source>
        <translation>视频组件</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>快捷方式</translation>
    </message>
    <message>
        <source>Last events</source>
        <translation>最近事件</translation>
    </message>
    <message>
        <source>No devices</source>
        <translation>无设备</translation>
    </message>
    <message>
        <source>%1 of %2 online</source>
        <translation>%1 / %2 在线</translation>
    </message>
    <message>
        <source>Add the first one in the device list.</source>
        <translation>请在设备列表中添加第一台设备。</translation>
    </message>
    <message>
        <source>All devices are reached.</source>
        <translation>所有设备均可访问。</translation>
    </message>
    <message>
        <source>Some devices are not reached.</source>
        <translation>部分设备无法访问。</translation>
    </message>
    <message>
        <source>Nothing has happened yet.</source>
        <translation>尚无事件。</translation>
    </message>
</context>
<context>
    <name>framework::CJournalPage</name>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>User</source>
        <translation>用户</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>所有类别</translation>
    </message>
    <message>
        <source>Nothing has happened yet</source>
        <translation>尚无事件</translation>
    </message>
    <message>
        <source>What happens is listed here, the newest first.</source>
        <translation>此处列出发生的事件，最新的在前。</translation>
    </message>
</context>
<context>
    <name>framework::CListPage</name>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
</context>
<context>
    <name>framework::CLocalFileChoices</name>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Camera or group</source>
        <translation>摄像机或分组</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>日期范围</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>今天</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>最近 7 天</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>最近 30 天</translation>
    </message>
    <message>
        <source>All days</source>
        <translation>全部日期</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>录像片段</translation>
    </message>
</context>
<context>
    <name>framework::CLocalFileModel</name>
    <message>
        <source>under 1 KiB</source>
        <translation>小于 1 KiB</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>摄像机</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>分组</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>时长</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>路径</translation>
    </message>
</context>
<context>
    <name>framework::CLocalFilesPage</name>
    <message>
        <source>Pictures and clips on this computer, as the component has catalogued them.</source>
        <translation>组件登记在案的本机图片和录像片段。</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Show folder</source>
        <translation>打开文件夹</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>正在加载</translation>
    </message>
    <message>
        <source>The component is asked for its records.</source>
        <translation>正在向组件查询记录。</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>刷新</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>未找到</translation>
    </message>
    <message>
        <source>No file has this text.</source>
        <translation>没有包含此文字的文件。</translation>
    </message>
    <message>
        <source>No camera yet</source>
        <translation>尚无摄像机</translation>
    </message>
    <message>
        <source>Add a device, or enter a camera&apos;s identifier.</source>
        <translation>请添加设备，或输入摄像机的标识符。</translation>
    </message>
    <message>
        <source>The component did not answer in time.</source>
        <translation>组件未及时响应。</translation>
    </message>
    <message>
        <source>The component answered with an error.</source>
        <translation>组件返回了错误。</translation>
    </message>
    <message>
        <source>The answer of the component cannot be read.</source>
        <translation>无法读取组件的响应。</translation>
    </message>
    <message>
        <source>No pictures</source>
        <translation>没有图片</translation>
    </message>
    <message>
        <source>No clips</source>
        <translation>没有录像片段</translation>
    </message>
    <message>
        <source>Nothing was catalogued for this camera or group in these days.</source>
        <translation>此摄像机或分组在所选日期内没有登记任何内容。</translation>
    </message>
    <message>
        <source>The list cannot be shown</source>
        <translation>无法显示列表</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Pictures: %1 (%2)</source>
        <translation>图片：%1（%2）</translation>
    </message>
    <message>
        <source>Clips: %1 (%2)</source>
        <translation>录像片段：%1（%2）</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>The component did not tell where the file is.</source>
        <translation>组件未告知文件的位置。</translation>
    </message>
    <message>
        <source>The file is no longer in the catalogue.</source>
        <translation>该文件已不在目录中。</translation>
    </message>
    <message>
        <source>The file is gone: %1</source>
        <translation>文件已不存在：%1</translation>
    </message>
    <message>
        <source>No program opens %1</source>
        <translation>没有可打开 %1 的程序</translation>
    </message>
</context>
<context>
    <name>framework::CMainWindow</name>
    <message>
        <source>Vantor Video Client</source>
        <translation>Vantor Video Client</translation>
    </message>
    <message>
        <source>Ending…</source>
        <translation>正在结束…</translation>
    </message>
</context>
<context>
    <name>framework::CNoticesPage</name>
    <message>
        <source>Alarms and messages of devices and of the system.</source>
        <translation>设备和系统的报警与消息。</translation>
    </message>
    <message>
        <source>Mark all as read</source>
        <translation>全部标为已读</translation>
    </message>
    <message>
        <source>No notices</source>
        <translation>无通知</translation>
    </message>
    <message>
        <source>Alarms of your devices appear here.</source>
        <translation>设备的报警会显示在这里。</translation>
    </message>
    <message>
        <source>Mark as read</source>
        <translation>标为已读</translation>
    </message>
</context>
<context>
    <name>framework::CPages</name>
    <message>
        <source>What users did, and what happened to the component.</source>
        <translation>用户的操作以及组件的状态变化。</translation>
    </message>
</context>
<context>
    <name>framework::CSettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>These hold for the whole client, whoever works with it.</source>
        <translation>这些设置适用于整个客户端的所有用户。</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>放弃更改</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外观</translation>
    </message>
    <message>
        <source>Skin</source>
        <translation>皮肤</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Another skin or language restarts the video component; open tabs come back.</source>
        <translation>更换皮肤或语言会重新启动视频组件；已打开的标签页会恢复。</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>日期和时间</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Default folders</source>
        <translation>默认文件夹</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>视频片段</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>图片</translation>
    </message>
</context>
<context>
    <name>framework::CSkinPicker</name>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝色</translation>
    </message>
    <message>
        <source>Neutral</source>
        <translation>中性</translation>
    </message>
</context>
<context>
    <name>framework::CStartDialog</name>
    <message>
        <source>Vantor Video Client</source>
        <translation>Vantor Video Client</translation>
    </message>
    <message>
        <source>Welcome</source>
        <translation>欢迎</translation>
    </message>
    <message>
        <source>Choose how the client looks. Both can be changed later in the settings.</source>
        <translation>请选择客户端的外观。两项均可稍后在设置中更改。</translation>
    </message>
    <message>
        <source>Skin</source>
        <translation>皮肤</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>开始</translation>
    </message>
</context>
<context>
    <name>framework::CStatusBar</name>
    <message>
        <source>Video component</source>
        <translation>视频组件</translation>
    </message>
</context>
<context>
    <name>framework::CSwitchUserDialog</name>
    <message>
        <source>Switch user</source>
        <translation>切换用户</translation>
    </message>
    <message>
        <source>User</source>
        <translation>用户</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>切换</translation>
    </message>
    <message>
        <source>The password is wrong.</source>
        <translation>密码错误。</translation>
    </message>
</context>
<context>
    <name>framework::CTabStrip</name>
    <message>
        <source>All open tabs</source>
        <translation>所有打开的标签页</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Close the others</source>
        <translation>关闭其他</translation>
    </message>
    <message>
        <source>Close all</source>
        <translation>全部关闭</translation>
    </message>
</context>
<context>
    <name>framework::CTopBar</name>
    <message>
        <source>Show or hide the navigation</source>
        <translation>显示或隐藏导航</translation>
    </message>
    <message>
        <source>Vantor Video Client</source>
        <translation>Vantor Video Client</translation>
    </message>
    <message>
        <source>User</source>
        <translation>用户</translation>
    </message>
    <message>
        <source>Switch user…</source>
        <translation>切换用户…</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>退出程序</translation>
    </message>
    <message>
        <source>%1+</source>
        <translation>%1+</translation>
    </message>
</context>
<context>
    <name>framework::CUsersPage</name>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Users</source>
        <translation>用户</translation>
    </message>
    <message>
        <source>Who works with the client, and what each may do.</source>
        <translation>谁使用客户端，以及各自的权限。</translation>
    </message>
    <message>
        <source>Add user</source>
        <translation>添加用户</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>保持不变</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>May use</source>
        <translation>可以使用</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>请输入名称。</translation>
    </message>
    <message>
        <source>There is a user of this name.</source>
        <translation>已存在同名用户。</translation>
    </message>
    <message>
        <source>The user was saved.</source>
        <translation>用户已保存。</translation>
    </message>
    <message>
        <source>Remove the user &quot;%1&quot;?</source>
        <translation>要移除用户“%1”吗？</translation>
    </message>
    <message>
        <source>Remove user</source>
        <translation>移除用户</translation>
    </message>
    <message>
        <source>The user was removed.</source>
        <translation>用户已移除。</translation>
    </message>
</context>
</TS>
