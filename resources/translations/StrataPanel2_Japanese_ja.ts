<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>SK_AboutDialog</name>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Application Version:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>skraid.sys:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>skcfg.sys:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>skbottom.sys:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SK_ArrayNameDialog</name>
    <message>
        <source>Array Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter an array name of up to 30 characters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Array Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid name: array names may not be the same as existing array names or contain the following characters: ()^,.=|&quot;-[]</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SK_ClearMetadataDialog</name>
    <message>
        <source>Clear Metadata</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk List:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SK_CreateDialog</name>
    <message>
        <source>Create</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Array Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Organized As:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Max Capacity:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capacity:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Max Capacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cache Options:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cache Tag Size:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trim:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background Array Scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skip Initialize  (Not Recommended)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave Existing Data Intact</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zero Create</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Array Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All NVMe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All SATA SSD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All HDD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Volume  (JBOD)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RAID 0  (Stripe)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RAID 1  (Mirror)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RAID 10 (Stripe of Mirrors)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RAID 5   (Stripe with Parity)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RAID 6   (Stripe with 2 Parities)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read + Write Back Cache</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read Cache</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write Back Cache</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Cache</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>64 KB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>128 KB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>256 KB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Free Space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Largest Free </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trim</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Informed Hot Swap</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Firmware Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid Configuration: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Create</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid name: array names may not be the same as existing array names or contain the following characters: ()^,.=|&quot;-[]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirm Create</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning: You have included a spare in the array. Would you like to continue?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning: drive mixing detected! For best performance, it is not recommended to mix drives of substantially different performance. Do you want to create anyway?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create failed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SK_DeleteForm</name>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NORMAL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>READY</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CRITICAL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OFFLINE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OUTDATE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CACHE OFFLINE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OS Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Partition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Array Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total Capacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cache</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Array </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deleting an array may cause data loss. Are you sure you want to delete the selected Array(s): </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirm Action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deleting arrays...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Abort</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SK_DiskProperites</name>
    <message>
        <source>Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk Write Back Caching:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk Read Ahead:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SMART Polling:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Note: Turning Disk Write Back Caching on may increase the likelihood of data corruption if the system power were to fail.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write Back Cache</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read Ahead</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SMART Poll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Firmware Revision</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> is a NVMe device and cannot change disk cache settings.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SK_MainWindow</name>
    <message>
        <source>Confirm Action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The total number of arrays is limited to </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transform</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Caching</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Task Priority</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Array Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If enabled Write Back Cache can increase the likelihood of data corruption if the system experiences an unexpected shutdown, do you wish to enable?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Un-Hide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Array </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Identify Array</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The LEDs representing the Disk(s) in the selected Array are now lit. Click &apos;OK&apos; to stop identifying.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove all Spares from </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Array </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to delete Array </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WARNING: All data will be lost and unrecoverable. Continue with Secure Erase on Array </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This operation will make the array invisible to the operating system and may cause DATA LOSS. Would you like to continue with the Prepare to Remove operation?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Array Removal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> has been removed from the configuration, the device&apos;s disconnected and are now ready to be physically removed from the system. It is important that no DISK RESCANs be performed until all of the disks in the array have been disconnected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Operation Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is an overlap between the selected array and another array. Operation canceled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This device is currently in use. Close any program or windows that might be using this device, and then try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Initialize Disks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear Metadata</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S.M.A.R.T. Overview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Controllers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restart %1 and change language to %2?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Very Low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Informational</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Critical</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fatal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Event Notification</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Event View Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter the minimum event number you wish to see:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>May have been unable to open file: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> please make sure to have a proper document reader selected as the default application for the file extension type or try to open manually if still unable to open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>May have been unable to open link: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>. If so, please try to open manually.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Free Space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Largest Free</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Global Spare</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Informed Hot Swap</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Firmware Revision</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OS Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Partition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total Capacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Task</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Task State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pri</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cache</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CTS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Trim</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ded Spare</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>#</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Priority</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to find the VOR RAID drivers, please confirm your BIOS settings have RAID enabled.

If running AHCI/Native mode, nothing needs to be done. Exiting application.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to find skcfg RAID driver, please ensure all required RAID drivers are installed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please run application as Administrator.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>While running this application at your current user privileges you will not be able to:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  (1) Perform destructive commands.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  (2) View array partitions and system array information.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value displays current MBs per second of performance between the OS and the VOR-RAID Driver.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value displays current MBs per second  performance between the VOR-RAID Driver and the storage device.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value displays current IOs per second performance between the OS and the VOR-RAID Driver.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value displays current IOs per second performance between the VOR-RAID Driver and the storage devices.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value displays total Bytes between the OS and the VOR-RAID Driver.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value displays total Bytes between the VOR-RAID Driver and the storage device.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Create</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create RAID array</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Transform</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transform an existing RAID array</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create a cached array between two existing RAID arrays</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Cache</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read Cache</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write Back Cache</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read + Write Back Cache</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Array Name of Selected Array</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide/Un-Hide an existing Array</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light LED(s) representing the selected Array</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Prepare To Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make the array invisible to the operating system for preparation of removal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Spares</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove all dedicated spares assigned to this array</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete an existing RAID array</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete &amp;Multiple Arrays</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select multiple existing RAID arrays for deletion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Secure Erase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Secure Erase an existing RAID array</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rescan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rescan all channels to detect new or removed physical disks and arrays.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Initialize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clear Metadata</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;S.M.A.R.T. Overview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S.M.A.R.T. (Self-Monitoring, Analysis and Reporting Technology) is a monitoring system by the drive to detect and report various indicators of drive reliability.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manage spares for the selected disk.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Application Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View application log information.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View Controllers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View Controller List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Event View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Collapse Event View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display Application and RAID Driver versions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;User Guide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Link to User Guide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Support</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Link to VOR Support Site</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;EULA</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View End User License Agreement (EULA).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Small</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Large</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Array</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check Consistency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background Array Scan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modify Cache Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Application Color Theme</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Icon Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Application&apos;s Icon Sizes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Font Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Application&apos;s Font Sizes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NORMAL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>READY</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CRITICAL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OFFLINE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OUTDATE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CACHE OFFLINE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NoError</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed Offline</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NOT ACTIVE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TRANSFORM</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CREATE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CHECK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>COPY</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RESTORE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CHECK BITMAP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FLUSH BITMAP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SECURE ERASE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PAGE MOVE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TIER MOVE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ZERO CREATE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>STARTED</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PAUSED</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SHUTDOWN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FAILED</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>STOPPED</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>COMPLETED</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>REMOVED</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NOT COMPLETED</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(Hidden)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> (Source)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> (Destination)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Dedicated Spares</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NA</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SK_SmartDiskDialog</name>
    <message>
        <source>S.M.A.R.T. Overview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk List:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Query Selected S.M.A.R.T. Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Firmware Revision</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power on Hours</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Power Cycle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Temperature (Celsius)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SK_TaskPriorityDialog</name>
    <message>
        <source>Task Priority</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TRANSFORM</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CREATE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CHECK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>COPY</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RESTORE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NOT ACTIVE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CHECK BITMAP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FLUSH BITMAP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SECURE ERASE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PAGE MOVE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TIER MOVE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ZERO CREATE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New priority: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current priority of the &apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos; task: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use the slider to choose a new priority for the &apos;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&apos; task on array &apos;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SK_TieringDialog</name>
    <message>
        <source>Caching</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tiering Options:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cache:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read + Write Back Cache</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Read Cache</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Array Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hot Arrays:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OS Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Partition</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Array Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total Capacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cache</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CTS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cold Arrays:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Commit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NORMAL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>READY</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CRITICAL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OFFLINE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OUTDATE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CACHE OFFLINE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>UNKNOWN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NA</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RAID CACHE</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RAID TIER</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Array </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tier command failed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SK_TransformDialog</name>
    <message>
        <source>Transform</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Array Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Organized As:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current Capacity:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Max Capacity:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capacity:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Max Capacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All HDD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Same</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All SATA SSD</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All NVMe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TextLabel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Commit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Volume  (JBOD)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RAID 0  (Stripe)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RAID 1  (Mirror)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RAID 10 (Stripe of Mirrors)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RAID 5   (Stripe with Parity)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RAID 6   (Stripe with 2 Parities)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Free Space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Largest Free </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GS</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Informed Hot Swap</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Firmware Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Array </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invalid Configuration: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirm Transform</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning: You have included a spare in the array. Would you like to continue?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning: This array transform includes a hot swappable device. After the transform completes a system reboot must be performed to notify the OS of the array&apos;s underlying device changes. Would you like to continue?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirm Create</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning: drive mixing detected! For best performance, it is not recommended to mix drives of substantially different performance. Do you want to create anyway?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transform command failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SK_diskSpareDialog</name>
    <message>
        <source>Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Assign as Dedicated Spare</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Assign as Global Spare</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Identify Disk using LEDs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove Device</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prepare to Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove as Global Spare</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove as Dedicated Spare</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirm Spare Assignment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning: drive mixing detected! For best performance, it is not recommended to mix drives of substantially different performance. Do you want to continue with spare assignment?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Identify Disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The LEDs representing the selected Disk are now lit. Click &apos;OK&apos; to stop identifying.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SK_initDisksDialog</name>
    <message>
        <source>Initialize Disks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk List:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Un-Initiliazed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Initialize Selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Uses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Free Space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Serial Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Sk_insertRemoveDialog</name>
    <message>
        <source>Event Notification</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PushButton</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rescan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drive Inserted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A RAID controller has detected the insertion of a new drive. To bring this drive on-line a controller RESCAN must be performed. If this drive is part of an array of several drives you should only rescan after the last drive that is part of the array has been inserted. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drive Removed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A RAID controller has detected the removal of a disk drive. To permanently remove the drive and sync the configuration a rescan must be performed. If this drive is part of an array that is being taken off-line, DO NOT RESCAN until the last drive included in the array has been removed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>The Application is already running.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The emulated host could not be started:
%1

The console runs without RAID drivers.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>sk_ControllerProperties</name>
    <message>
        <source>Controllers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Controller List:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port Count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PCI Vendor ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PCI Device ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PCI SubVendor ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PCI SubDevice ID</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Slot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Function</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>N/A</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
