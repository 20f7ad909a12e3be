<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en">
<context>
    <name>VantorGUIToolkit::CButtonSection</name>
    <message>
        <source>Buttons and choices</source>
        <translation>Buttons and choices</translation>
    </message>
    <message>
        <source>&amp;Click</source>
        <translation>&amp;Click</translation>
    </message>
    <message>
        <source>Clicks: %1</source>
        <translation>Clicks: %1</translation>
    </message>
    <message>
        <source>Show the focus</source>
        <translation>Show the focus</translation>
    </message>
    <message>
        <source>Moves the focus to the first button, as Tab would.</source>
        <translation>Moves the focus to the first button, as Tab would.</translation>
    </message>
    <message>
        <source>Primary</source>
        <translation>Primary</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Quiet</source>
        <translation>Quiet</translation>
    </message>
    <message>
        <source>Danger</source>
        <translation>Danger</translation>
    </message>
    <message>
        <source>With icon</source>
        <translation>With icon</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Checked</translation>
    </message>
    <message>
        <source>Push buttons, enabled and disabled</source>
        <translation>Push buttons, enabled and disabled</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disabled</translation>
    </message>
    <message>
        <source>With text</source>
        <translation>With text</translation>
    </message>
    <message>
        <source>Tool buttons</source>
        <translation>Tool buttons</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Nothing chosen</source>
        <translation>Nothing chosen</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Add</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edit</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Not available</translation>
    </message>
    <message>
        <source>Show details</source>
        <translation>Show details</translation>
    </message>
    <message>
        <source>Move to screen</source>
        <translation>Move to screen</translation>
    </message>
    <message>
        <source>Screen %1</source>
        <translation>Screen %1</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>A menu with icons, shortcuts and a sub-menu</source>
        <translation>A menu with icons, shortcuts and a sub-menu</translation>
    </message>
    <message>
        <source>Check boxes, radio buttons and switches</source>
        <translation>Check boxes, radio buttons and switches</translation>
    </message>
    <message>
        <source>Unchecked</source>
        <translation>Unchecked</translation>
    </message>
    <message>
        <source>Partly checked</source>
        <translation>Partly checked</translation>
    </message>
    <message>
        <source>First</source>
        <translation>First</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Second</translation>
    </message>
    <message>
        <source>On</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Off</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CDataSection</name>
    <message>
        <source>Lists and tables</source>
        <translation>Lists and tables</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Table</translation>
    </message>
    <message>
        <source>Empty table</source>
        <translation>Empty table</translation>
    </message>
    <message>
        <source>Tree</source>
        <translation>Tree</translation>
    </message>
    <message>
        <source>List</source>
        <translation>List</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disabled</translation>
    </message>
    <message>
        <source>Devices</source>
        <translation>Devices</translation>
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
        <source>Channels</source>
        <translation>Channels</translation>
    </message>
    <message>
        <source>State</source>
        <translation>State</translation>
    </message>
    <message>
        <source>Entrance, second floor, camera at the north gate</source>
        <translation>Entrance, second floor, camera at the north gate</translation>
    </message>
    <message>
        <source>Recorder %1</source>
        <translation>Recorder %1</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>Online</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nothing found</translation>
    </message>
    <message>
        <source>No device has a name like this.</source>
        <translation>No device has a name like this.</translation>
    </message>
    <message>
        <source>Building %1</source>
        <translation>Building %1</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>Camera %1</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Cameras</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CDialog</name>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CDialogSection</name>
    <message>
        <source>Dialogs and waiting</source>
        <translation>Dialogs and waiting</translation>
    </message>
    <message>
        <source>No answer yet</source>
        <translation>No answer yet</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Question</translation>
    </message>
    <message>
        <source>Danger</source>
        <translation>Danger</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Job of two seconds</source>
        <translation>Job of two seconds</translation>
    </message>
    <message>
        <source>The job has ended</source>
        <translation>The job has ended</translation>
    </message>
    <message>
        <source>The settings have been changed. Do you want to save the new settings?</source>
        <translation>The settings have been changed. Do you want to save the new settings?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>The recordings of this camera are removed for good.</source>
        <translation>The recordings of this camera are removed for good.</translation>
    </message>
    <message>
        <source>Remove recordings</source>
        <translation>Remove recordings</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>The settings are saved on all devices.</source>
        <translation>The settings are saved on all devices.</translation>
    </message>
    <message>
        <source>The storage server is not reached.</source>
        <translation>The storage server is not reached.</translation>
    </message>
    <message>
        <source>Add a device</source>
        <translation>Add a device</translation>
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
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>The job runs</source>
        <translation>The job runs</translation>
    </message>
    <message>
        <source>Processing</source>
        <translation>Processing</translation>
    </message>
    <message>
        <source>A job runs already</source>
        <translation>A job runs already</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CFormSection</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Connection</translation>
    </message>
    <message>
        <source>&amp;Address</source>
        <translation>&amp;Address</translation>
    </message>
    <message>
        <source>Name or address of the device in your network.</source>
        <translation>Name or address of the device in your network.</translation>
    </message>
    <message>
        <source>&amp;Port</source>
        <translation>&amp;Port</translation>
    </message>
    <message>
        <source>Pass&amp;word</source>
        <translation>Pass&amp;word</translation>
    </message>
    <message>
        <source>Connect when the program starts</source>
        <translation>Connect when the program starts</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Check</translation>
    </message>
    <message>
        <source>The port is a number from 1 to 65535.</source>
        <translation>The port is a number from 1 to 65535.</translation>
    </message>
    <message>
        <source>Enter an address.</source>
        <translation>Enter an address.</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CGalleryPage</name>
    <message>
        <source>Gallery</source>
        <translation>Gallery</translation>
    </message>
    <message>
        <source>Every widget in every state.</source>
        <translation>Every widget in every state.</translation>
    </message>
    <message>
        <source>Secondary</source>
        <translation>Secondary</translation>
    </message>
    <message>
        <source>Primary</source>
        <translation>Primary</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CIconSection</name>
    <message>
        <source>Icons: normal, selected, disabled</source>
        <translation>Icons: normal, selected, disabled</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CInputSection</name>
    <message>
        <source>Inputs</source>
        <translation>Inputs</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Read-only</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Disabled</translation>
    </message>
    <message>
        <source>Invalid</source>
        <translation>Invalid</translation>
    </message>
    <message>
        <source>Line edits: empty, filled, read-only, disabled, invalid</source>
        <translation>Line edits: empty, filled, read-only, disabled, invalid</translation>
    </message>
    <message>
        <source>Entrance, second floor, camera at the north gate</source>
        <translation>Entrance, second floor, camera at the north gate</translation>
    </message>
    <message>
        <source>Filled</source>
        <translation>Filled</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Gate</source>
        <translation>Gate</translation>
    </message>
    <message>
        <source>Folder for recordings</source>
        <translation>Folder for recordings</translation>
    </message>
    <message>
        <source>Password, search and path</source>
        <translation>Password, search and path</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Channel</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>Camera %1</translation>
    </message>
    <message>
        <source>Editable</source>
        <translation>Editable</translation>
    </message>
    <message>
        <source>Second</source>
        <translation>Second</translation>
    </message>
    <message>
        <source>Third</source>
        <translation>Third</translation>
    </message>
    <message>
        <source>Combo boxes: with a long list, editable, disabled, invalid</source>
        <translation>Combo boxes: with a long list, editable, disabled, invalid</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>Fraction</source>
        <translation>Fraction</translation>
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
        <source>Numbers, dates and times</source>
        <translation>Numbers, dates and times</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progress</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Remarks</translation>
    </message>
    <message>
        <source>A text of several lines.
It scrolls when it is too long for its field.</source>
        <translation>A text of several lines.
It scrolls when it is too long for its field.</translation>
    </message>
    <message>
        <source>Texts of several lines</source>
        <translation>Texts of several lines</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CMessageSection</name>
    <message>
        <source>Texts and messages</source>
        <translation>Texts and messages</translation>
    </message>
    <message>
        <source>Title of a page</source>
        <translation>Title of a page</translation>
    </message>
    <message>
        <source>Heading of a section</source>
        <translation>Heading of a section</translation>
    </message>
    <message>
        <source>A sentence of plain text.</source>
        <translation>A sentence of plain text.</translation>
    </message>
    <message>
        <source>A hint that helps with a field.</source>
        <translation>A hint that helps with a field.</translation>
    </message>
    <message>
        <source>What is wrong with a field.</source>
        <translation>What is wrong with a field.</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>Online</translation>
    </message>
    <message>
        <source>Weak signal</source>
        <translation>Weak signal</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Recording</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>Unused</translation>
    </message>
    <message>
        <source>Badges</source>
        <translation>Badges</translation>
    </message>
    <message>
        <source>Banners</source>
        <translation>Banners</translation>
    </message>
    <message>
        <source>The settings are saved on all devices.</source>
        <translation>The settings are saved on all devices.</translation>
    </message>
    <message>
        <source>Less than 5 GB are free in the folder for recordings.</source>
        <translation>Less than 5 GB are free in the folder for recordings.</translation>
    </message>
    <message>
        <source>The storage server is not reached.</source>
        <translation>The storage server is not reached.</translation>
    </message>
    <message>
        <source>A new version is available.</source>
        <translation>A new version is available.</translation>
    </message>
    <message>
        <source>No schedule is active.</source>
        <translation>No schedule is active.</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Try again</translation>
    </message>
    <message>
        <source>Starting the broadcast succeeded.</source>
        <translation>Starting the broadcast succeeded.</translation>
    </message>
    <message>
        <source>The picture is saved, but the folder is nearly full.</source>
        <translation>The picture is saved, but the folder is nearly full.</translation>
    </message>
    <message>
        <source>The settings could not be written to three of the eight devices. Check that they are switched on and reachable in the network, then save once more.</source>
        <translation>The settings could not be written to three of the eight devices. Check that they are switched on and reachable in the network, then save once more.</translation>
    </message>
    <message>
        <source>Camera 07 is connected again.</source>
        <translation>Camera 07 is connected again.</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Nothing was changed.</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Success</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Neutral</source>
        <translation>Neutral</translation>
    </message>
    <message>
        <source>Notices at the bottom right of the screen</source>
        <translation>Notices at the bottom right of the screen</translation>
    </message>
    <message>
        <source>No cameras</source>
        <translation>No cameras</translation>
    </message>
    <message>
        <source>Add a device to see its cameras here.</source>
        <translation>Add a device to see its cameras here.</translation>
    </message>
    <message>
        <source>Add a device</source>
        <translation>Add a device</translation>
    </message>
    <message>
        <source>Where nothing is to be shown</source>
        <translation>Where nothing is to be shown</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CNotice</name>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CPasswordEdit</name>
    <message>
        <source>Show password</source>
        <translation>Show password</translation>
    </message>
    <message>
        <source>Hide password</source>
        <translation>Hide password</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CPathComboBox</name>
    <message>
        <source>Browse</source>
        <translation>Browse</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>Choose a folder</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Choose a file</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CSearchEdit</name>
    <message>
        <source>Clear</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Search</translation>
    </message>
</context>
<context>
    <name>VantorGUIToolkit::CWarningDlg</name>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>gallery::GalleryWindow</name>
    <message>
        <source>Page</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>Widgets</source>
        <translation>Widgets</translation>
    </message>
    <message>
        <source>Resource tree</source>
        <translation>Resource tree</translation>
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
        <source>Scale: start again with QT_SCALE_FACTOR=1.5</source>
        <translation>Scale: start again with QT_SCALE_FACTOR=1.5</translation>
    </message>
</context>
<context>
    <name>gallery::TreePage</name>
    <message>
        <source>Resource tree</source>
        <translation>Resource tree</translation>
    </message>
    <message>
        <source>By devices</source>
        <translation>By devices</translation>
    </message>
    <message>
        <source>By groups</source>
        <translation>By groups</translation>
    </message>
    <message>
        <source>Searched</source>
        <translation>Searched</translation>
    </message>
    <message>
        <source>Ten thousand</source>
        <translation>Ten thousand</translation>
    </message>
    <message>
        <source>Without devices</source>
        <translation>Without devices</translation>
    </message>
    <message>
        <source>Without hits</source>
        <translation>Without hits</translation>
    </message>
</context>
</TS>
