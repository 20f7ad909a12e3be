<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>ComponentState</name>
    <message>
        <source>Starting</source>
        <translation>Starting</translation>
    </message>
    <message>
        <source>The component is starting.</source>
        <translation>The component is starting.</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Ready</translation>
    </message>
    <message>
        <source>The component is at work.</source>
        <translation>The component is at work.</translation>
    </message>
    <message>
        <source>Restarting</source>
        <translation>Restarting</translation>
    </message>
    <message>
        <source>The component ended and will be started again.</source>
        <translation>The component ended and will be started again.</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Failed</translation>
    </message>
    <message>
        <source>The component ended too often and is not started again.</source>
        <translation>The component ended too often and is not started again.</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Stopped</translation>
    </message>
    <message>
        <source>The component is not running.</source>
        <translation>The component is not running.</translation>
    </message>
</context>
<context>
    <name>DeviceForm</name>
    <message>
        <source>A name has at most 64 characters.</source>
        <translation>A name has at most 64 characters.</translation>
    </message>
    <message>
        <source>Another device has this name.</source>
        <translation>Another device has this name.</translation>
    </message>
    <message>
        <source>Enter a host name or an IP address.</source>
        <translation>Enter a host name or an IP address.</translation>
    </message>
    <message>
        <source>This is neither a host name nor an IP address.</source>
        <translation>This is neither a host name nor an IP address.</translation>
    </message>
    <message>
        <source>Enter the user of the device.</source>
        <translation>Enter the user of the device.</translation>
    </message>
</context>
<context>
    <name>DeviceText</name>
    <message>
        <source>Device</source>
        <translation>Device</translation>
    </message>
    <message>
        <source>Encoder</source>
        <translation>Encoder</translation>
    </message>
    <message>
        <source>Recorder</source>
        <translation>Recorder</translation>
    </message>
    <message>
        <source>Storage server</source>
        <translation>Storage server</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>Online</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Connecting</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Recording</translation>
    </message>
    <message>
        <source>Not supported by its device</source>
        <translation>Not supported by its device</translation>
    </message>
</context>
<context>
    <name>Journal</name>
    <message>
        <source>Alarm</source>
        <translation>Alarm</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Device</translation>
    </message>
    <message>
        <source>User</source>
        <translation>User</translation>
    </message>
    <message>
        <source>Component</source>
        <translation>Component</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Window</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
</context>
<context>
    <name>Permissions</name>
    <message>
        <source>Live view</source>
        <translation>Live view</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>Playback</translation>
    </message>
    <message>
        <source>Clips and pictures</source>
        <translation>Clips and pictures</translation>
    </message>
    <message>
        <source>Recording schedules</source>
        <translation>Recording schedules</translation>
    </message>
    <message>
        <source>Storage plans</source>
        <translation>Storage plans</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Devices</translation>
    </message>
    <message>
        <source>Broadcast</source>
        <translation>Broadcast</translation>
    </message>
    <message>
        <source>Alarm outputs</source>
        <translation>Alarm outputs</translation>
    </message>
    <message>
        <source>Wipers</source>
        <translation>Wipers</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Users</source>
        <translation>Users</translation>
    </message>
</context>
<context>
    <name>Sentences</name>
    <message>
        <source>The component was started.</source>
        <translation>The component was started.</translation>
    </message>
    <message>
        <source>The component has joined.</source>
        <translation>The component has joined.</translation>
    </message>
    <message>
        <source>The component is ready.</source>
        <translation>The component is ready.</translation>
    </message>
    <message>
        <source>The component has left.</source>
        <translation>The component has left.</translation>
    </message>
    <message>
        <source>The component was asked to end.</source>
        <translation>The component was asked to end.</translation>
    </message>
    <message>
        <source>The component is not started again.</source>
        <translation>The component is not started again.</translation>
    </message>
    <message>
        <source>The component ended with exit code %1. It is started again in %2 s.</source>
        <translation>The component ended with exit code %1. It is started again in %2 s.</translation>
    </message>
    <message>
        <source>The component ended with signal %1. It is started again in %2 s.</source>
        <translation>The component ended with signal %1. It is started again in %2 s.</translation>
    </message>
    <message>
        <source>The component ended with %1. It was started %2 times within a minute and is given up.</source>
        <translation>The component ended with %1. It was started %2 times within a minute and is given up.</translation>
    </message>
    <message>
        <source>The component ended with exit code %1.</source>
        <translation>The component ended with exit code %1.</translation>
    </message>
    <message>
        <source>The component ended with signal %1.</source>
        <translation>The component ended with signal %1.</translation>
    </message>
    <message>
        <source>The component cannot be started: %1.</source>
        <translation>The component cannot be started: %1.</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; was added.</source>
        <translation>Device &quot;%1&quot; was added.</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; was changed.</source>
        <translation>Device &quot;%1&quot; was changed.</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; was removed.</source>
        <translation>Device &quot;%1&quot; was removed.</translation>
    </message>
    <message>
        <source>Test alarm of %1</source>
        <translation>Test alarm of %1</translation>
    </message>
    <message>
        <source>Changed settings: %1.</source>
        <translation>Changed settings: %1.</translation>
    </message>
    <message>
        <source>The users were changed.</source>
        <translation>The users were changed.</translation>
    </message>
    <message>
        <source>User &quot;%1&quot; took over from &quot;%2&quot;.</source>
        <translation>User &quot;%1&quot; took over from &quot;%2&quot;.</translation>
    </message>
    <message>
        <source>The address and port belong to another device.</source>
        <translation>The address and port belong to another device.</translation>
    </message>
    <message>
        <source>The devices cannot be saved.</source>
        <translation>The devices cannot be saved.</translation>
    </message>
    <message>
        <source>There are too many devices.</source>
        <translation>There are too many devices.</translation>
    </message>
    <message>
        <source>The users cannot be saved.</source>
        <translation>The users cannot be saved.</translation>
    </message>
    <message>
        <source>There are too many users.</source>
        <translation>There are too many users.</translation>
    </message>
    <message>
        <source>Somebody must be allowed to manage users.</source>
        <translation>Somebody must be allowed to manage users.</translation>
    </message>
    <message>
        <source>The user is at work.</source>
        <translation>The user is at work.</translation>
    </message>
    <message>
        <source>skin</source>
        <translation>skin</translation>
    </message>
    <message>
        <source>language</source>
        <translation>language</translation>
    </message>
    <message>
        <source>edition</source>
        <translation>edition</translation>
    </message>
    <message>
        <source>date format</source>
        <translation>date format</translation>
    </message>
    <message>
        <source>time format</source>
        <translation>time format</translation>
    </message>
    <message>
        <source>folder of clips</source>
        <translation>folder of clips</translation>
    </message>
    <message>
        <source>folder of pictures</source>
        <translation>folder of pictures</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; is online.</source>
        <translation>Device &quot;%1&quot; is online.</translation>
    </message>
    <message>
        <source>Device &quot;%1&quot; is offline.</source>
        <translation>Device &quot;%1&quot; is offline.</translation>
    </message>
    <message>
        <source>The user name must have at most 127 bytes.</source>
        <translation>The user name must have at most 127 bytes.</translation>
    </message>
    <message>
        <source>The password must have at most 127 bytes.</source>
        <translation>The password must have at most 127 bytes.</translation>
    </message>
</context>
<context>
    <name>Windows</name>
    <message>
        <source>Live View</source>
        <translation>Live View</translation>
    </message>
    <message>
        <source>Playback</source>
        <translation>Playback</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Recording</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Devices</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Tools</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>Main View</source>
        <translation>Main View</translation>
    </message>
    <message>
        <source>Auxiliary Screen</source>
        <translation>Auxiliary Screen</translation>
    </message>
    <message>
        <source>Second Live View</source>
        <translation>Second Live View</translation>
    </message>
    <message>
        <source>Third Live View</source>
        <translation>Third Live View</translation>
    </message>
    <message>
        <source>Fourth Live View</source>
        <translation>Fourth Live View</translation>
    </message>
    <message>
        <source>Remote Playback</source>
        <translation>Remote Playback</translation>
    </message>
    <message>
        <source>Video Files</source>
        <translation>Video Files</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Pictures</translation>
    </message>
    <message>
        <source>Recording Schedule</source>
        <translation>Recording Schedule</translation>
    </message>
    <message>
        <source>Storage Plan</source>
        <translation>Storage Plan</translation>
    </message>
    <message>
        <source>Device List</source>
        <translation>Device List</translation>
    </message>
    <message>
        <source>Encoding Devices</source>
        <translation>Encoding Devices</translation>
    </message>
    <message>
        <source>Streaming Media Servers</source>
        <translation>Streaming Media Servers</translation>
    </message>
    <message>
        <source>Voice Broadcast</source>
        <translation>Voice Broadcast</translation>
    </message>
    <message>
        <source>Alarm Outputs</source>
        <translation>Alarm Outputs</translation>
    </message>
    <message>
        <source>Wiper Control</source>
        <translation>Wiper Control</translation>
    </message>
    <message>
        <source>Widget Gallery</source>
        <translation>Widget Gallery</translation>
    </message>
    <message>
        <source>Notification Centre</source>
        <translation>Notification Centre</translation>
    </message>
    <message>
        <source>Operation Log</source>
        <translation>Operation Log</translation>
    </message>
    <message>
        <source>Users</source>
        <translation>Users</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Local Files</source>
        <translation>Local Files</translation>
    </message>
</context>
<context>
    <name>framework::CCameraBox</name>
    <message>
        <source>Camera, group or identifier</source>
        <translation>Camera, group or identifier</translation>
    </message>
</context>
<context>
    <name>framework::CComponentTab</name>
    <message>
        <source>Waiting for the component…</source>
        <translation>Waiting for the component…</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Try again</translation>
    </message>
    <message>
        <source>The component ended. It is being restarted…</source>
        <translation>The component ended. It is being restarted…</translation>
    </message>
    <message>
        <source>Your tabs come back by themselves.</source>
        <translation>Your tabs come back by themselves.</translation>
    </message>
    <message>
        <source>The component is not running.</source>
        <translation>The component is not running.</translation>
    </message>
    <message>
        <source>Start the component</source>
        <translation>Start the component</translation>
    </message>
    <message>
        <source>The component did not answer in time, or it cannot show this page.</source>
        <translation>The component did not answer in time, or it cannot show this page.</translation>
    </message>
    <message>
        <source>It ended too often. The operation log has the details.</source>
        <translation>It ended too often. The operation log has the details.</translation>
    </message>
</context>
<context>
    <name>framework::CDeviceDetails</name>
    <message>
        <source>Try now</source>
        <translation>Try now</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Address</translation>
    </message>
    <message>
        <source>User</source>
        <translation>User</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Serial number</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Channels</translation>
    </message>
    <message>
        <source>Alarm inputs and outputs</source>
        <translation>Alarm inputs and outputs</translation>
    </message>
    <message>
        <source>%1, encrypted</source>
        <translation>%1, encrypted</translation>
    </message>
    <message>
        <source>%1, online %2</source>
        <translation>%1, online %2</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 and %2</translation>
    </message>
    <message>
        <source>Channel %1: %2</source>
        <translation>Channel %1: %2</translation>
    </message>
</context>
<context>
    <name>framework::CDeviceDialog</name>
    <message>
        <source>Add device</source>
        <translation>Add device</translation>
    </message>
    <message>
        <source>Edit device</source>
        <translation>Edit device</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Address</translation>
    </message>
    <message>
        <source>Host name or IP address</source>
        <translation>Host name or IP address</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>User</source>
        <translation>User</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>The device does not exist any more.</source>
        <translation>The device does not exist any more.</translation>
    </message>
    <message>
        <source>Encrypted connection (TLS)</source>
        <translation>Encrypted connection (TLS)</translation>
    </message>
    <message>
        <source>Empty: the name that the device has</source>
        <translation>Empty: the name that the device has</translation>
    </message>
    <message>
        <source>Connecting to the device…</source>
        <translation>Connecting to the device…</translation>
    </message>
    <message>
        <source>Add anyway</source>
        <translation>Add anyway</translation>
    </message>
    <message>
        <source>Save anyway</source>
        <translation>Save anyway</translation>
    </message>
</context>
<context>
    <name>framework::CDevicesPage</name>
    <message>
        <source>Cameras, recorders and storage servers that the client works with.</source>
        <translation>Cameras, recorders and storage servers that the client works with.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Add device</source>
        <translation>Add device</translation>
    </message>
    <message>
        <source>Remove the device &quot;%1&quot; with its channels?</source>
        <translation>Remove the device &quot;%1&quot; with its channels?</translation>
    </message>
    <message>
        <source>Remove device</source>
        <translation>Remove device</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Edit…</translation>
    </message>
    <message>
        <source>Remove…</source>
        <translation>Remove…</translation>
    </message>
    <message>
        <source>Simulate an alarm</source>
        <translation>Simulate an alarm</translation>
    </message>
    <message>
        <source>No device chosen</source>
        <translation>No device chosen</translation>
    </message>
    <message>
        <source>Choose a device or a camera to see more about it.</source>
        <translation>Choose a device or a camera to see more about it.</translation>
    </message>
    <message>
        <source>Try now</source>
        <translation>Try now</translation>
    </message>
</context>
<context>
    <name>framework::CHomePage</name>
    <message>
        <source>Your devices and the client at a glance.</source>
        <translation>Your devices and the client at a glance.</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Devices</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Restart</translation>
    </message>
    <message>
        <source>Video component</source>
        <translation>Video component</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Shortcuts</translation>
    </message>
    <message>
        <source>Last events</source>
        <translation>Last events</translation>
    </message>
    <message>
        <source>No devices</source>
        <translation>No devices</translation>
    </message>
    <message>
        <source>%1 of %2 online</source>
        <translation>%1 of %2 online</translation>
    </message>
    <message>
        <source>Add the first one in the device list.</source>
        <translation>Add the first one in the device list.</translation>
    </message>
    <message>
        <source>All devices are reached.</source>
        <translation>All devices are reached.</translation>
    </message>
    <message>
        <source>Some devices are not reached.</source>
        <translation>Some devices are not reached.</translation>
    </message>
    <message>
        <source>Nothing has happened yet.</source>
        <translation>Nothing has happened yet.</translation>
    </message>
</context>
<context>
    <name>framework::CJournalPage</name>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Kind</translation>
    </message>
    <message>
        <source>User</source>
        <translation>User</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Event</translation>
    </message>
    <message>
        <source>All kinds</source>
        <translation>All kinds</translation>
    </message>
    <message>
        <source>Nothing has happened yet</source>
        <translation>Nothing has happened yet</translation>
    </message>
    <message>
        <source>What happens is listed here, the newest first.</source>
        <translation>What happens is listed here, the newest first.</translation>
    </message>
</context>
<context>
    <name>framework::CListPage</name>
    <message>
        <source>Search</source>
        <translation>Search</translation>
    </message>
</context>
<context>
    <name>framework::CLocalFileChoices</name>
    <message>
        <source>Search</source>
        <translation>Search</translation>
    </message>
    <message>
        <source>Camera or group</source>
        <translation>Camera or group</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Days</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Today</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Last 7 days</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>Last 30 days</translation>
    </message>
    <message>
        <source>All days</source>
        <translation>All days</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Pictures</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Clips</translation>
    </message>
</context>
<context>
    <name>framework::CLocalFileModel</name>
    <message>
        <source>under 1 KiB</source>
        <translation>under 1 KiB</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Camera</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Group</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Length</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>Path</translation>
    </message>
</context>
<context>
    <name>framework::CLocalFilesPage</name>
    <message>
        <source>Pictures and clips on this computer, as the component has catalogued them.</source>
        <translation>Pictures and clips on this computer, as the component has catalogued them.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Show folder</source>
        <translation>Show folder</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Loading</translation>
    </message>
    <message>
        <source>The component is asked for its records.</source>
        <translation>The component is asked for its records.</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Refresh</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nothing found</translation>
    </message>
    <message>
        <source>No file has this text.</source>
        <translation>No file has this text.</translation>
    </message>
    <message>
        <source>No camera yet</source>
        <translation>No camera yet</translation>
    </message>
    <message>
        <source>Add a device, or enter a camera&apos;s identifier.</source>
        <translation>Add a device, or enter a camera&apos;s identifier.</translation>
    </message>
    <message>
        <source>The component did not answer in time.</source>
        <translation>The component did not answer in time.</translation>
    </message>
    <message>
        <source>The component answered with an error.</source>
        <translation>The component answered with an error.</translation>
    </message>
    <message>
        <source>The answer of the component cannot be read.</source>
        <translation>The answer of the component cannot be read.</translation>
    </message>
    <message>
        <source>No pictures</source>
        <translation>No pictures</translation>
    </message>
    <message>
        <source>No clips</source>
        <translation>No clips</translation>
    </message>
    <message>
        <source>Nothing was catalogued for this camera or group in these days.</source>
        <translation>Nothing was catalogued for this camera or group in these days.</translation>
    </message>
    <message>
        <source>The list cannot be shown</source>
        <translation>The list cannot be shown</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Try again</translation>
    </message>
    <message>
        <source>Pictures: %1 (%2)</source>
        <translation>Pictures: %1 (%2)</translation>
    </message>
    <message>
        <source>Clips: %1 (%2)</source>
        <translation>Clips: %1 (%2)</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 of %2</translation>
    </message>
    <message>
        <source>The component did not tell where the file is.</source>
        <translation>The component did not tell where the file is.</translation>
    </message>
    <message>
        <source>The file is no longer in the catalogue.</source>
        <translation>The file is no longer in the catalogue.</translation>
    </message>
    <message>
        <source>The file is gone: %1</source>
        <translation>The file is gone: %1</translation>
    </message>
    <message>
        <source>No program opens %1</source>
        <translation>No program opens %1</translation>
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
        <translation>Ending…</translation>
    </message>
</context>
<context>
    <name>framework::CNoticesPage</name>
    <message>
        <source>Alarms and messages of devices and of the system.</source>
        <translation>Alarms and messages of devices and of the system.</translation>
    </message>
    <message>
        <source>Mark all as read</source>
        <translation>Mark all as read</translation>
    </message>
    <message>
        <source>No notices</source>
        <translation>No notices</translation>
    </message>
    <message>
        <source>Alarms of your devices appear here.</source>
        <translation>Alarms of your devices appear here.</translation>
    </message>
    <message>
        <source>Mark as read</source>
        <translation>Mark as read</translation>
    </message>
</context>
<context>
    <name>framework::CPages</name>
    <message>
        <source>What users did, and what happened to the component.</source>
        <translation>What users did, and what happened to the component.</translation>
    </message>
</context>
<context>
    <name>framework::CSettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>These hold for the whole client, whoever works with it.</source>
        <translation>These hold for the whole client, whoever works with it.</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Discard</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Appearance</translation>
    </message>
    <message>
        <source>Skin</source>
        <translation>Skin</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Another skin or language restarts the video component; open tabs come back.</source>
        <translation>Another skin or language restarts the video component; open tabs come back.</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Date and time</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Default folders</source>
        <translation>Default folders</translation>
    </message>
    <message>
        <source>Clips</source>
        <translation>Clips</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Pictures</translation>
    </message>
</context>
<context>
    <name>framework::CSkinPicker</name>
    <message>
        <source>Dark</source>
        <translation>Dark</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>Bright</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blue</translation>
    </message>
    <message>
        <source>Neutral</source>
        <translation>Neutral</translation>
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
        <translation>Welcome</translation>
    </message>
    <message>
        <source>Choose how the client looks. Both can be changed later in the settings.</source>
        <translation>Choose how the client looks. Both can be changed later in the settings.</translation>
    </message>
    <message>
        <source>Skin</source>
        <translation>Skin</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
</context>
<context>
    <name>framework::CStatusBar</name>
    <message>
        <source>Video component</source>
        <translation>Video component</translation>
    </message>
</context>
<context>
    <name>framework::CSwitchUserDialog</name>
    <message>
        <source>Switch user</source>
        <translation>Switch user</translation>
    </message>
    <message>
        <source>User</source>
        <translation>User</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>Switch</translation>
    </message>
    <message>
        <source>The password is wrong.</source>
        <translation>The password is wrong.</translation>
    </message>
</context>
<context>
    <name>framework::CTabStrip</name>
    <message>
        <source>All open tabs</source>
        <translation>All open tabs</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Close the others</source>
        <translation>Close the others</translation>
    </message>
    <message>
        <source>Close all</source>
        <translation>Close all</translation>
    </message>
</context>
<context>
    <name>framework::CTopBar</name>
    <message>
        <source>Show or hide the navigation</source>
        <translation>Show or hide the navigation</translation>
    </message>
    <message>
        <source>Vantor Video Client</source>
        <translation>Vantor Video Client</translation>
    </message>
    <message>
        <source>User</source>
        <translation>User</translation>
    </message>
    <message>
        <source>Switch user…</source>
        <translation>Switch user…</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>End the program</translation>
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
        <translation>Remove</translation>
    </message>
    <message>
        <source>Users</source>
        <translation>Users</translation>
    </message>
    <message>
        <source>Who works with the client, and what each may do.</source>
        <translation>Who works with the client, and what each may do.</translation>
    </message>
    <message>
        <source>Add user</source>
        <translation>Add user</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>Unchanged</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>May use</source>
        <translation>May use</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>Enter a name.</translation>
    </message>
    <message>
        <source>There is a user of this name.</source>
        <translation>There is a user of this name.</translation>
    </message>
    <message>
        <source>The user was saved.</source>
        <translation>The user was saved.</translation>
    </message>
    <message>
        <source>Remove the user &quot;%1&quot;?</source>
        <translation>Remove the user &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>Remove user</source>
        <translation>Remove user</translation>
    </message>
    <message>
        <source>The user was removed.</source>
        <translation>The user was removed.</translation>
    </message>
</context>
</TS>
