<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>VantorGUIToolkit::CButtonSection</name>
    <message>
        <source>Buttons and choices</source>
        <translation>按钮与选项</translation>
    </message>
    <message>
        <source>&amp;Click</source>
        <translation>点击(&amp;C)</translation>
    </message>
    <message>
        <source>Clicks: %1</source>
        <translation>点击次数：%1</translation>
    </message>
    <message>
        <source>Show the focus</source>
        <translation>显示焦点</translation>
    </message>
    <message>
        <source>Moves the focus to the first button, as Tab would.</source>
        <translation>将焦点移到第一个按钮，与 Tab 键相同。</translation>
    </message>
    <message>
        <source>Primary</source>
        <translation>主要</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>普通</translation>
    </message>
    <message>
        <source>Quiet</source>
        <translation>弱化</translation>
    </message>
    <message>
        <source>Danger</source>
        <translation>危险</translation>
    </message>
    <message>
        <source>With icon</source>
        <translation>带图标</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>已选中</translation>
    </message>
    <message>
        <source>Push buttons, enabled and disabled</source>
        <translation>按钮：可用与禁用</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>已禁用</translation>
    </message>
    <message>
        <source>With text</source>
        <translation>带文字</translation>
    </message>
    <message>
        <source>Tool buttons</source>
        <translation>工具按钮</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Nothing chosen</source>
        <translation>未选择</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>添加(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>不可用</translation>
    </message>
    <message>
        <source>Show details</source>
        <translation>显示详细信息</translation>
    </message>
    <message>
        <source>Move to screen</source>
        <translation>移至屏幕</translation>
    </message>
    <message>
        <source>Screen %1</source>
        <translation>屏幕 %1</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>菜单</translation>
    </message>
    <message>
        <source>A menu with icons, shortcuts and a sub-menu</source>
        <translation>带图标、快捷键和子菜单的菜单</translation>
    </message>
    <message>
        <source>Check boxes, radio buttons and switches</source>
        <translation>复选框、单选按钮与开关</translation>
    </message>
    <message>
        <source>Unchecked</source>
        <translation>未选中</translation>
    </message>
    <message>
        <source>Partly checked</source>
        <translation>部分选中</translation>
    </message>
    <message>
        <source>First</source>
        <translation>第一项</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>第二项</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CDataSection</name>
    <message>
        <source>Lists and tables</source>
        <translation>列表与表格</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>表格</translation>
    </message>
    <message>
        <source>Empty table</source>
        <translation>空表格</translation>
    </message>
    <message>
        <source>Tree</source>
        <translation>树</translation>
    </message>
    <message>
        <source>List</source>
        <translation>列表</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>已禁用</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>设备</translation>
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
        <source>Channels</source>
        <translation>通道数</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Entrance, second floor, camera at the north gate</source>
        <translation>二楼入口，北门摄像机</translation>
    </message>
    <message>
        <source>Recorder %1</source>
        <translation>录像机 %1</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>离线</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>在线</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>未找到任何内容</translation>
    </message>
    <message>
        <source>No device has a name like this.</source>
        <translation>没有名称匹配的设备。</translation>
    </message>
    <message>
        <source>Building %1</source>
        <translation>%1 号楼</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>摄像机 %1</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>摄像机</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CDialog</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CDialogSection</name>
    <message>
        <source>Dialogs and waiting</source>
        <translation>对话框与等待</translation>
    </message>
    <message>
        <source>No answer yet</source>
        <translation>尚无回答</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>询问</translation>
    </message>
    <message>
        <source>Danger</source>
        <translation>危险</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>表单</translation>
    </message>
    <message>
        <source>Job of two seconds</source>
        <translation>两秒任务</translation>
    </message>
    <message>
        <source>The job has ended</source>
        <translation>任务已结束</translation>
    </message>
    <message>
        <source>The settings have been changed. Do you want to save the new settings?</source>
        <translation>设置已更改。是否保存新设置？</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>The recordings of this camera are removed for good.</source>
        <translation>该摄像机的录像将被永久删除。</translation>
    </message>
    <message>
        <source>Remove recordings</source>
        <translation>删除录像</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>The settings are saved on all devices.</source>
        <translation>设置已保存到所有设备。</translation>
    </message>
    <message>
        <source>The storage server is not reached.</source>
        <translation>无法连接存储服务器。</translation>
    </message>
    <message>
        <source>Add a device</source>
        <translation>添加设备</translation>
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
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>The job runs</source>
        <translation>任务正在运行</translation>
    </message>
    <message>
        <source>Processing</source>
        <translation>正在处理</translation>
    </message>
    <message>
        <source>A job runs already</source>
        <translation>已有任务在运行</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CFormSection</name>
    <message>
        <source>Form</source>
        <translation>表单</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>地址(&amp;A)</translation>
    </message>
    <message>
        <source>Name or address of the device in your network.</source>
        <translation>设备在网络中的名称或地址。</translation>
    </message>
    <message>
        <source>&amp;Port</source>
        <translation>端口(&amp;P)</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>密码(&amp;W)</translation>
    </message>
    <message>
        <source>Connect when the program starts</source>
        <translation>程序启动时连接</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>检查</translation>
    </message>
    <message>
        <source>The port is a number from 1 to 65535.</source>
        <translation>端口应为 1 到 65535 之间的数字。</translation>
    </message>
    <message>
        <source>Enter an address.</source>
        <translation>请输入地址。</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CGalleryPage</name>
    <message>
        <source>Gallery</source>
        <translation>控件库</translation>
    </message>
    <message>
        <source>Every widget in every state.</source>
        <translation>所有控件的所有状态。</translation>
    </message>
    <message>
        <source>Secondary</source>
        <translation>次要</translation>
    </message>
    <message>
        <source>Primary</source>
        <translation>主要</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CIconSection</name>
    <message>
        <source>Icons: normal, selected, disabled</source>
        <translation>图标：普通、选中、禁用</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CInputSection</name>
    <message>
        <source>Inputs</source>
        <translation>输入</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>已禁用</translation>
    </message>
    <message>
        <source>Invalid</source>
        <translation>无效</translation>
    </message>
    <message>
        <source>Line edits: empty, filled, read-only, disabled, invalid</source>
        <translation>输入框：空、已填、只读、禁用、无效</translation>
    </message>
    <message>
        <source>Entrance, second floor, camera at the north gate</source>
        <translation>二楼入口，北门摄像机</translation>
    </message>
    <message>
        <source>Filled</source>
        <translation>已填</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Gate</source>
        <translation>大门</translation>
    </message>
    <message>
        <source>Folder for recordings</source>
        <translation>录像文件夹</translation>
    </message>
    <message>
        <source>Password, search and path</source>
        <translation>密码、搜索与路径</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>通道</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>摄像机 %1</translation>
    </message>
    <message>
        <source>Editable</source>
        <translation>可编辑</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>第二项</translation>
    </message>
    <message>
        <source>Third</source>
        <translation>第三项</translation>
    </message>
    <message>
        <source>Combo boxes: with a long list, editable, disabled, invalid</source>
        <translation>下拉框：长列表、可编辑、禁用、无效</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>Fraction</source>
        <translation>小数</translation>
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
        <source>Numbers, dates and times</source>
        <translation>数字、日期与时间</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>A text of several lines.
It scrolls when it is too long for its field.</source>
        <translation>多行文本。
超出文本框时可以滚动。</translation>
    </message>
    <message>
        <source>Texts of several lines</source>
        <translation>多行文本</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CMessageSection</name>
    <message>
        <source>Texts and messages</source>
        <translation>文本与消息</translation>
    </message>
    <message>
        <source>Title of a page</source>
        <translation>页面标题</translation>
    </message>
    <message>
        <source>Heading of a section</source>
        <translation>分区标题</translation>
    </message>
    <message>
        <source>A sentence of plain text.</source>
        <translation>一句普通文本。</translation>
    </message>
    <message>
        <source>A hint that helps with a field.</source>
        <translation>有助于填写字段的提示。</translation>
    </message>
    <message>
        <source>What is wrong with a field.</source>
        <translation>字段中的错误说明。</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>在线</translation>
    </message>
    <message>
        <source>Weak signal</source>
        <translation>信号弱</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>离线</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>正在录像</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>未使用</translation>
    </message>
    <message>
        <source>Badges</source>
        <translation>状态标签</translation>
    </message>
    <message>
        <source>Banners</source>
        <translation>横幅</translation>
    </message>
    <message>
        <source>The settings are saved on all devices.</source>
        <translation>设置已保存到所有设备。</translation>
    </message>
    <message>
        <source>Less than 5 GB are free in the folder for recordings.</source>
        <translation>录像文件夹的可用空间不足 5 GB。</translation>
    </message>
    <message>
        <source>The storage server is not reached.</source>
        <translation>无法连接存储服务器。</translation>
    </message>
    <message>
        <source>A new version is available.</source>
        <translation>有新版本可用。</translation>
    </message>
    <message>
        <source>No schedule is active.</source>
        <translation>没有启用的计划。</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Starting the broadcast succeeded.</source>
        <translation>广播已成功启动。</translation>
    </message>
    <message>
        <source>The picture is saved, but the folder is nearly full.</source>
        <translation>图片已保存，但文件夹空间即将用尽。</translation>
    </message>
    <message>
        <source>The settings could not be written to three of the eight devices. Check that they are switched on and reachable in the network, then save once more.</source>
        <translation>八台设备中有三台未能写入设置。请确认它们已开机且网络可达，然后重新保存。</translation>
    </message>
    <message>
        <source>Camera 07 is connected again.</source>
        <translation>摄像机 07 已重新连接。</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>未作任何更改。</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Neutral</source>
        <translation>中性</translation>
    </message>
    <message>
        <source>Notices at the bottom right of the screen</source>
        <translation>屏幕右下角的通知</translation>
    </message>
    <message>
        <source>No cameras</source>
        <translation>没有摄像机</translation>
    </message>
    <message>
        <source>Add a device to see its cameras here.</source>
        <translation>添加设备后可在此查看其摄像机。</translation>
    </message>
    <message>
        <source>Add a device</source>
        <translation>添加设备</translation>
    </message>
    <message>
        <source>Where nothing is to be shown</source>
        <translation>无内容可显示时</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CNotice</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CPasswordEdit</name>
    <message>
        <source>Show password</source>
        <translation>显示密码</translation>
    </message>
    <message>
        <source>Hide password</source>
        <translation>隐藏密码</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CPathComboBox</name>
    <message>
        <source>Browse</source>
        <translation>浏览</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>选择文件</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CSearchEdit</name>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CWarningDlg</name>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>gallery::GalleryWindow</name>
    <message>
        <source>Page</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>Widgets</source>
        <translation>控件</translation>
    </message>
    <message>
        <source>Resource tree</source>
        <translation>资源树</translation>
    </message>
    <message>
        <source>Skin</source>
        <translation>外观</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Scale: start again with QT_SCALE_FACTOR=1.5</source>
        <translation>缩放：使用 QT_SCALE_FACTOR=1.5 重新启动</translation>
    </message>
</context>
<context>
    <name>gallery::TreePage</name>
    <message>
        <source>Resource tree</source>
        <translation>资源树</translation>
    </message>
    <message>
        <source>By devices</source>
        <translation>按设备</translation>
    </message>
    <message>
        <source>By groups</source>
        <translation>按分组</translation>
    </message>
    <message>
        <source>Searched</source>
        <translation>搜索中</translation>
    </message>
    <message>
        <source>Ten thousand</source>
        <translation>一万个</translation>
    </message>
    <message>
        <source>Without devices</source>
        <translation>没有设备</translation>
    </message>
    <message>
        <source>Without hits</source>
        <translation>没有结果</translation>
    </message>
</context>
</TS>
