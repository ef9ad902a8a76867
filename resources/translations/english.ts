<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>About</translation>
    </message>
    <message>
        <source>Press Desk</source>
        <translation>Press Desk</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Data collection</source>
        <translation>Data collection</translation>
    </message>
    <message>
        <source>Legal notices</source>
        <translation>Legal notices</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>AccountEditDialog</name>
    <message>
        <source>Account ID:</source>
        <translation>Account ID:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Description:</translation>
    </message>
    <message>
        <source>New Account ID</source>
        <translation>New Account ID</translation>
    </message>
    <message>
        <source>Edit Account ID</source>
        <translation>Edit Account ID</translation>
    </message>
</context>
<context>
    <name>AccountListDialog</name>
    <message>
        <source>New</source>
        <translation>New</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Account ID</source>
        <translation>Account ID</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Select an account first.</source>
        <translation>Select an account first.</translation>
    </message>
</context>
<context>
    <name>BixDialog</name>
    <message>
        <source>Brixola Press Desk</source>
        <translation>Brixola Press Desk</translation>
    </message>
    <message>
        <source>Press Desk</source>
        <translation>Press Desk</translation>
    </message>
    <message>
        <source>Please do not run %1 as root.</source>
        <translation>Please do not run %1 as root.</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Save As...</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profiles</translation>
    </message>
    <message>
        <source>About</source>
        <translation>About</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>It looks like your installed printers have changed.
Reloading list now.</source>
        <translation>It looks like your installed printers have changed.
Reloading list now.</translation>
    </message>
    <message>
        <source>Select a printer.</source>
        <translation>Select a printer.</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Success</translation>
    </message>
    <message>
        <source>Settings applied.</source>
        <translation>Settings applied.</translation>
    </message>
    <message>
        <source>Error: Printer does not exist or lpoptions failed.</source>
        <translation>Error: Printer does not exist or lpoptions failed.</translation>
    </message>
    <message>
        <source>The folder %1 is a link, or it belongs to somebody else (%2). Your settings are neither read from it nor saved in it. Ask an administrator to remove it or to make you its owner.</source>
        <translation>The folder %1 is a link, or it belongs to somebody else (%2). Your settings are neither read from it nor saved in it. Ask an administrator to remove it or to make you its owner.</translation>
    </message>
    <message>
        <source>See %1</source>
        <comment>pages with marks</comment>
        <translation>See %1</translation>
    </message>
    <message>
        <source>The PPD of %1 can&apos;t be read.</source>
        <translation>The PPD of %1 can&apos;t be read.</translation>
    </message>
    <message>
        <source>Applying...</source>
        <translation>Applying...</translation>
    </message>
    <message>
        <source>Print server does not answer.</source>
        <translation>Print server does not answer.</translation>
    </message>
    <message>
        <source>The settings could not be saved in %1.</source>
        <translation>The settings could not be saved in %1.</translation>
    </message>
    <message>
        <source>The print system may use them all the same.</source>
        <translation>The print system may use them all the same.</translation>
    </message>
</context>
<context>
    <name>BixTabWidget</name>
    <message>
        <source>Something has changed here.</source>
        <translation>Something has changed here.</translation>
    </message>
</context>
<context>
    <name>BookletTab</name>
    <message>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Left edge binding</source>
        <translation>Left edge binding</translation>
    </message>
    <message>
        <source>Right edge binding</source>
        <translation>Right edge binding</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Booklet</translation>
    </message>
    <message>
        <source>Booklet fold</source>
        <translation>Booklet fold</translation>
    </message>
</context>
<context>
    <name>ChangeReport</name>
    <message>
        <source>The policy server</source>
        <translation>The policy server</translation>
    </message>
    <message>
        <source>Switched off: %1.</source>
        <translation>Switched off: %1.</translation>
    </message>
    <message>
        <source>Changed: %1.</source>
        <translation>Changed: %1.</translation>
    </message>
    <message>
        <source>%1 switched off: %2.</source>
        <translation>%1 switched off: %2.</translation>
    </message>
    <message>
        <source>%1 changed: %2.</source>
        <translation>%1 changed: %2.</translation>
    </message>
    <message>
        <source>%1 was switched off by %2.</source>
        <translation>%1 was switched off by %2.</translation>
    </message>
    <message>
        <source>%1 were switched off by %2.</source>
        <translation>%1 were switched off by %2.</translation>
    </message>
    <message>
        <source>Changed by %2: %1.</source>
        <translation>Changed by %2: %1.</translation>
    </message>
    <message>
        <source>Switch on again</source>
        <translation>Switch on again</translation>
    </message>
    <message>
        <source>Change back</source>
        <translation>Change back</translation>
    </message>
    <message>
        <source>Adjusted to this printer: %1.</source>
        <translation>Adjusted to this printer: %1.</translation>
    </message>
</context>
<context>
    <name>ColorGroup</name>
    <message>
        <source>Full color</source>
        <translation>Full color</translation>
    </message>
    <message>
        <source>Black &amp; white</source>
        <translation>Black &amp; white</translation>
    </message>
</context>
<context>
    <name>FKPTab</name>
    <message>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>On</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Login user name</source>
        <translation>Login user name</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>No notifications for policy conflicts</source>
        <translation>No notifications for policy conflicts</translation>
    </message>
    <message>
        <source>Continue printing</source>
        <translation>Continue printing</translation>
    </message>
    <message>
        <source>Cancel printing</source>
        <translation>Cancel printing</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Verify</translation>
    </message>
    <message>
        <source>Unable to connect to the server.</source>
        <translation>Unable to connect to the server.</translation>
    </message>
    <message>
        <source>Server, Port, and Login user information must be filled out.</source>
        <translation>Server, Port, and Login user information must be filled out.</translation>
    </message>
    <message>
        <source>You must click Verify after making changes.</source>
        <translation>You must click Verify after making changes.</translation>
    </message>
    <message>
        <source>Login failed. The user name or password you entered is incorrect.</source>
        <translation>Login failed. The user name or password you entered is incorrect.</translation>
    </message>
    <message>
        <source>An unspecified error occured.</source>
        <translation>An unspecified error occured.</translation>
    </message>
    <message>
        <source>Server and user credentials have been authenticated and policies have been applied.

Credentials and policies will be checked again during printing.
</source>
        <translation>Server and user credentials have been authenticated and policies have been applied.

Credentials and policies will be checked again during printing.
</translation>
    </message>
    <message>
        <source>You do not have permission to print.</source>
        <translation>You do not have permission to print.</translation>
    </message>
</context>
<context>
    <name>FinishingTab</name>
    <message>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Offset jobs</source>
        <translation>Offset jobs</translation>
    </message>
    <message>
        <source>Rotate copies</source>
        <translation>Rotate copies</translation>
    </message>
    <message>
        <source>On</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Tri-Fold</source>
        <translation>Tri-Fold</translation>
    </message>
    <message>
        <source>Bi-Fold</source>
        <translation>Bi-Fold</translation>
    </message>
    <message>
        <source>Staple:</source>
        <translation>Staple:</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Punch</translation>
    </message>
    <message>
        <source>Print side</source>
        <translation>Print side</translation>
    </message>
    <message>
        <source>Direction of fold</source>
        <translation>Direction of fold</translation>
    </message>
    <message>
        <source>Number of sheets</source>
        <translation>Number of sheets</translation>
    </message>
    <message>
        <source>Staple location:</source>
        <translation>Staple location:</translation>
    </message>
    <message>
        <source>Staple method</source>
        <translation>Staple method</translation>
    </message>
    <message>
        <source>Punch Method:</source>
        <translation>Punch Method:</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Finishing</translation>
    </message>
    <message>
        <source>Separation</source>
        <translation>Separation</translation>
    </message>
    <message>
        <source>Hole punch</source>
        <translation>Hole punch</translation>
    </message>
</context>
<context>
    <name>GeneralTab</name>
    <message>
        <source>Basic</source>
        <translation>Basic</translation>
    </message>
    <message>
        <source>Media size</source>
        <translation>Media size</translation>
    </message>
    <message>
        <source>Media type</source>
        <translation>Media type</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Collate</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>On</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Duplex</source>
        <translation>Duplex</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>Long edge</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>Short edge</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Print size</source>
        <translation>Print size</translation>
    </message>
</context>
<context>
    <name>ImagingTab</name>
    <message>
        <source>Trapping</source>
        <translation>Trapping</translation>
    </message>
    <message>
        <source>Gloss mode</source>
        <translation>Gloss mode</translation>
    </message>
    <message>
        <source>CIE optimization</source>
        <translation>CIE optimization</translation>
    </message>
    <message>
        <source>Halftone screen</source>
        <translation>Halftone screen</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolution</translation>
    </message>
    <message>
        <source>Color reproduction</source>
        <translation>Color reproduction</translation>
    </message>
    <message>
        <source>Color conversion</source>
        <translation>Color conversion</translation>
    </message>
    <message>
        <source>VRS</source>
        <translation>VRS</translation>
    </message>
    <message>
        <source>Print grays with black toner</source>
        <translation>Print grays with black toner</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>On</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Imaging</source>
        <translation>Imaging</translation>
    </message>
    <message>
        <source>Print quality</source>
        <translation>Print quality</translation>
    </message>
    <message>
        <source>LeanPrint</source>
        <translation>LeanPrint</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Adjustment</source>
        <translation>Adjustment</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Settings...</translation>
    </message>
    <message>
        <source>600 dpi</source>
        <translation>600 dpi</translation>
    </message>
</context>
<context>
    <name>JobTab</name>
    <message>
        <source>Account ID must be 1 to 8 numbers in length</source>
        <translation>Account ID must be 1 to 8 numbers in length</translation>
    </message>
    <message>
        <source>Private print</source>
        <translation>Private print</translation>
    </message>
    <message>
        <source>Custom box</source>
        <translation>Custom box</translation>
    </message>
    <message>
        <source>Value cannot contain the double quote (&quot;) character.</source>
        <translation>Value cannot contain the double quote (&quot;) character.</translation>
    </message>
    <message>
        <source>Job accounting</source>
        <translation>Job accounting</translation>
    </message>
    <message>
        <source>Job accounting</source>
        <comment>caption</comment>
        <extracomment>Short, since it stands below a small picture.</extracomment>
        <translation>Job accounting</translation>
    </message>
    <message>
        <source>Select account ID</source>
        <translation>Select account ID</translation>
    </message>
    <message>
        <source>Account ID List</source>
        <translation>Account ID List</translation>
    </message>
    <message>
        <source>Use specific account ID</source>
        <translation>Use specific account ID</translation>
    </message>
    <message>
        <source>You must add an account ID to the list.</source>
        <translation>You must add an account ID to the list.</translation>
    </message>
    <message>
        <source>Job e-mail notification</source>
        <translation>Job e-mail notification</translation>
    </message>
    <message>
        <source>Job e-mail notification</source>
        <comment>caption</comment>
        <extracomment>Short, since it stands below a small picture.</extracomment>
        <translation>Job e-mail notification</translation>
    </message>
    <message>
        <source>Enter a valid e-mail address.</source>
        <translation>Enter a valid e-mail address.</translation>
    </message>
    <message>
        <source>Enter the e-mail address in a valid format.
For example: %1</source>
        <translation>Enter the e-mail address in a valid format.
For example: %1</translation>
    </message>
    <message>
        <source>E-mail address cannot contain any spaces.</source>
        <translation>E-mail address cannot contain any spaces.</translation>
    </message>
    <message>
        <source>E-mail address should use only ASCII characters.</source>
        <translation>E-mail address should use only ASCII characters.</translation>
    </message>
    <message>
        <source>User Login</source>
        <translation>User Login</translation>
    </message>
    <message>
        <source>User login</source>
        <extracomment>Short, since it stands below a small picture.</extracomment>
        <translation>User login</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>User name must be at least one character long.</source>
        <translation>User name must be at least one character long.</translation>
    </message>
    <message>
        <source>Job name</source>
        <translation>Job name</translation>
    </message>
    <message>
        <source>Overwrite job name:</source>
        <translation>Overwrite job name:</translation>
    </message>
    <message>
        <source>Application defined</source>
        <translation>Application defined</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Custom</translation>
    </message>
    <message>
        <source>Use job name + date and time</source>
        <translation>Use job name + date and time</translation>
    </message>
    <message>
        <source>Replace existing file</source>
        <translation>Replace existing file</translation>
    </message>
    <message>
        <source>The custom job name field requires a name within a 64 character limit.</source>
        <translation>The custom job name field requires a name within a 64 character limit.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Job settings</source>
        <translation>Job settings</translation>
    </message>
    <message>
        <source>Job storage:</source>
        <extracomment>Short, since it stands below a small picture.</extracomment>
        <translation>Job storage:</translation>
    </message>
    <message>
        <source>Access code</source>
        <translation>Access code</translation>
    </message>
    <message>
        <source>Box number</source>
        <translation>Box number</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Job storage</source>
        <translation>Job storage</translation>
    </message>
    <message>
        <source>Proof and hold</source>
        <translation>Proof and hold</translation>
    </message>
    <message>
        <source>Access code must be 4 numbers in length.</source>
        <translation>Access code must be 4 numbers in length.</translation>
    </message>
    <message>
        <source>Enter a custom box number between 1 and 1000.</source>
        <translation>Enter a custom box number between 1 and 1000.</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Job</translation>
    </message>
    <message>
        <source>This Account ID already exists.</source>
        <translation>This Account ID already exists.</translation>
    </message>
    <message>
        <source>Account ID Error</source>
        <translation>Account ID Error</translation>
    </message>
    <message>
        <source>Custom job name</source>
        <translation>Custom job name</translation>
    </message>
</context>
<context>
    <name>LicenseDialog</name>
    <message>
        <source>Legal Notices</source>
        <translation>Legal Notices</translation>
    </message>
</context>
<context>
    <name>NoticeLine</name>
    <message>
        <source>%1 %2 (%3)</source>
        <comment>sentence, offer, keys</comment>
        <translation>%1 %2 (%3)</translation>
    </message>
    <message>
        <source>%1 and one more</source>
        <translation>%1 and one more</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 and %2 more</translation>
    </message>
</context>
<context>
    <name>OptionLabels</name>
    <message>
        <source>On</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>option and value</comment>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>OptionStore</name>
    <message>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>On</source>
        <translation>On</translation>
    </message>
</context>
<context>
    <name>PasswordPrompt</name>
    <message>
        <source>Password Prompt</source>
        <translation>Password Prompt</translation>
    </message>
    <message>
        <source>Please enter the root password.</source>
        <translation>Please enter the root password.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Could not authorize.</source>
        <translation>Could not authorize.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be handed to the program that changes the printer: only letters, digits and %2 can.</source>
        <translation>&quot;%1&quot; can&apos;t be handed to the program that changes the printer: only letters, digits and %2 can.</translation>
    </message>
    <message>
        <source>The program %1 is missing. An administrator has to install it in a folder of root&apos;s search path, such as /usr/sbin.</source>
        <translation>The program %1 is missing. An administrator has to install it in a folder of root&apos;s search path, such as /usr/sbin.</translation>
    </message>
    <message>
        <source>sudo wants your own password.</source>
        <translation>sudo wants your own password.</translation>
    </message>
    <message>
        <source>su wants the administrator&apos;s password (root).</source>
        <translation>su wants the administrator&apos;s password (root).</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Method</translation>
    </message>
</context>
<context>
    <name>PrinterStatus</name>
    <message>
        <source>Idle</source>
        <translation>Idle</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Paused</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Printing</translation>
    </message>
    <message>
        <source>Error: Printer does not exist or lpstat failed.</source>
        <translation>Error: Printer does not exist or lpstat failed.</translation>
    </message>
</context>
<context>
    <name>PrinterTab</name>
    <message>
        <source>Printer</source>
        <translation>Printer</translation>
    </message>
    <message>
        <source>Installed options</source>
        <translation>Installed options</translation>
    </message>
    <message>
        <source>Root access is required to make changes to installable options</source>
        <translation>Root access is required to make changes to installable options</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Printers</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Select a printer.</source>
        <translation>Select a printer.</translation>
    </message>
    <message>
        <source>Asking...</source>
        <translation>Asking...</translation>
    </message>
    <message>
        <source>The print system (CUPS) does not answer, so no printer can be listed.</source>
        <translation>The print system (CUPS) does not answer, so no printer can be listed.</translation>
    </message>
    <message>
        <source>There is no Brixola printer yet. A print queue counts as one if it uses the PPD of a Brixola or NV-RATEX printer; a driverless one does not. Add the printer with that PPD in the print settings of your system or with lpadmin.</source>
        <translation>There is no Brixola printer yet. A print queue counts as one if it uses the PPD of a Brixola or NV-RATEX printer; a driverless one does not. Add the printer with that PPD in the print settings of your system or with lpadmin.</translation>
    </message>
    <message>
        <source>Look again</source>
        <translation>Look again</translation>
    </message>
</context>
<context>
    <name>ProfileDialog</name>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Edit...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profiles</translation>
    </message>
    <message>
        <source>Save Profiles</source>
        <translation>Save Profiles</translation>
    </message>
    <message>
        <source>Edit Profile</source>
        <translation>Edit Profile</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Detail</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Item</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Select profile:</source>
        <translation>Select profile:</translation>
    </message>
    <message>
        <source>Factory Default</source>
        <translation>Factory Default</translation>
    </message>
    <message>
        <source>Resolve the marked conflicts first.</source>
        <translation>Resolve the marked conflicts first.</translation>
    </message>
    <message>
        <source>Select a profile of your own first.</source>
        <translation>Select a profile of your own first.</translation>
    </message>
    <message>
        <source>The profile does not say which printer these values are of.</source>
        <translation>The profile does not say which printer these values are of.</translation>
    </message>
    <message>
        <source>There is no PPD of %1 here to name these values. An administrator can add it with brixola-press-desk-ppds.</source>
        <translation>There is no PPD of %1 here to name these values. An administrator can add it with brixola-press-desk-ppds.</translation>
    </message>
</context>
<context>
    <name>ProfileEditDialog</name>
    <message>
        <source>Description:</source>
        <translation>Description:</translation>
    </message>
    <message>
        <source>Edit Profile</source>
        <translation>Edit Profile</translation>
    </message>
</context>
<context>
    <name>ProfileFormDialog</name>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Enter a name first.</source>
        <translation>Enter a name first.</translation>
    </message>
    <message>
        <source>This name is reserved.</source>
        <translation>This name is reserved.</translation>
    </message>
    <message>
        <source>A name can&apos;t begin with a dot, nor contain / &quot; ` or ;</source>
        <translation>A name can&apos;t begin with a dot, nor contain / &quot; ` or ;</translation>
    </message>
    <message>
        <source>The name or the description is too long.</source>
        <translation>The name or the description is too long.</translation>
    </message>
    <message>
        <source>The profile could not be saved.</source>
        <translation>The profile could not be saved.</translation>
    </message>
</context>
<context>
    <name>ProfileReader</name>
    <message>
        <source>Profiles</source>
        <translation>Profiles</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>Basic</translation>
    </message>
    <message>
        <source>Print size</source>
        <translation>Print size</translation>
    </message>
    <message>
        <source>Media type</source>
        <translation>Media type</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Collate</translation>
    </message>
    <message>
        <source>Duplex</source>
        <translation>Duplex</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Booklet</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Finishing</translation>
    </message>
    <message>
        <source>Separation</source>
        <translation>Separation</translation>
    </message>
    <message>
        <source>Folding mode</source>
        <translation>Folding mode</translation>
    </message>
    <message>
        <source>Folding side</source>
        <translation>Folding side</translation>
    </message>
    <message>
        <source>Folding direction</source>
        <translation>Folding direction</translation>
    </message>
    <message>
        <source>Folding method</source>
        <translation>Folding method</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Staple</translation>
    </message>
    <message>
        <source>Staple method</source>
        <translation>Staple method</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Punch</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Rotate</translation>
    </message>
    <message>
        <source>Imaging</source>
        <translation>Imaging</translation>
    </message>
    <message>
        <source>Trapping</source>
        <translation>Trapping</translation>
    </message>
    <message>
        <source>Gloss mode</source>
        <translation>Gloss mode</translation>
    </message>
    <message>
        <source>CIE optimization</source>
        <translation>CIE optimization</translation>
    </message>
    <message>
        <source>Halftone screen</source>
        <translation>Halftone screen</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolution</translation>
    </message>
    <message>
        <source>LeanPrint</source>
        <translation>LeanPrint</translation>
    </message>
    <message>
        <source>HSL/Color Balance</source>
        <translation>HSL/Color Balance</translation>
    </message>
    <message>
        <source>Color adjustment</source>
        <translation>Color adjustment</translation>
    </message>
    <message>
        <source>Monochrome adjustment</source>
        <translation>Monochrome adjustment</translation>
    </message>
    <message>
        <source>Color mode</source>
        <translation>Color mode</translation>
    </message>
    <message>
        <source>Color reproduction</source>
        <translation>Color reproduction</translation>
    </message>
    <message>
        <source>Color conversion</source>
        <translation>Color conversion</translation>
    </message>
    <message>
        <source>VRS</source>
        <translation>VRS</translation>
    </message>
    <message>
        <source>Print grays with black toner</source>
        <translation>Print grays with black toner</translation>
    </message>
    <message>
        <source>Publishing</source>
        <translation>Publishing</translation>
    </message>
    <message>
        <source>Cover mode</source>
        <translation>Cover mode</translation>
    </message>
    <message>
        <source>Page insert</source>
        <translation>Page insert</translation>
    </message>
    <message>
        <source>Transparency interleaving</source>
        <translation>Transparency interleaving</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Job</translation>
    </message>
    <message>
        <source>Job settings</source>
        <translation>Job settings</translation>
    </message>
    <message>
        <source>Job accounting</source>
        <translation>Job accounting</translation>
    </message>
    <message>
        <source>Job name</source>
        <translation>Job name</translation>
    </message>
    <message>
        <source>Job e-mail notification</source>
        <translation>Job e-mail notification</translation>
    </message>
    <message>
        <source>User login</source>
        <translation>User login</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Watermark</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>On</source>
        <translation>On</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Private print</source>
        <translation>Private print</translation>
    </message>
    <message>
        <source>Custom box</source>
        <translation>Custom box</translation>
    </message>
    <message>
        <source>Custom watermark</source>
        <translation>Custom watermark</translation>
    </message>
    <message>
        <source>Black &amp; white</source>
        <translation>Black &amp; white</translation>
    </message>
</context>
<context>
    <name>ProfileSaveDialog</name>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Save Profile</source>
        <translation>Save Profile</translation>
    </message>
    <message>
        <source>The profile could not be added. A maximum profile count of 25 has been reached.</source>
        <translation>The profile could not be added. A maximum profile count of 25 has been reached.</translation>
    </message>
    <message>
        <source>Select a printer.</source>
        <translation>Select a printer.</translation>
    </message>
    <message>
        <source>This name is reserved</source>
        <translation>This name is reserved</translation>
    </message>
    <message>
        <source>You must enter a profile name</source>
        <translation>You must enter a profile name</translation>
    </message>
</context>
<context>
    <name>PublishingTab</name>
    <message>
        <source>Cover mode:</source>
        <translation>Cover mode:</translation>
    </message>
    <message>
        <source>Cover mode:</source>
        <comment>caption</comment>
        <translation>Cover mode:</translation>
    </message>
    <message>
        <source>Media for cover:</source>
        <translation>Media for cover:</translation>
    </message>
    <message>
        <source>Page insert:</source>
        <translation>Page insert:</translation>
    </message>
    <message>
        <source>Page insert:</source>
        <comment>caption</comment>
        <translation>Page insert:</translation>
    </message>
    <message>
        <source>Media for page:</source>
        <translation>Media for page:</translation>
    </message>
    <message>
        <source>Transparency interleaving:</source>
        <translation>Transparency interleaving:</translation>
    </message>
    <message>
        <source>Transparency interleaving:</source>
        <comment>caption</comment>
        <translation>Transparency interleaving:</translation>
    </message>
    <message>
        <source>Media for backing:</source>
        <translation>Media for backing:</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>Front</translation>
    </message>
    <message>
        <source>Front and back</source>
        <translation>Front and back</translation>
    </message>
    <message>
        <source>Outside</source>
        <translation>Outside</translation>
    </message>
    <message>
        <source>Inside</source>
        <translation>Inside</translation>
    </message>
    <message>
        <source>Print onto front</source>
        <translation>Print onto front</translation>
    </message>
    <message>
        <source>Print onto back</source>
        <translation>Print onto back</translation>
    </message>
    <message>
        <source>Print onto backing</source>
        <translation>Print onto backing</translation>
    </message>
    <message>
        <source>Print onto:</source>
        <translation>Print onto:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>Insert before pages:</source>
        <translation>Insert before pages:</translation>
    </message>
    <message>
        <source>Generic error message</source>
        <translation>Generic error message</translation>
    </message>
    <message>
        <source>Please type a page range.</source>
        <translation>Please type a page range.</translation>
    </message>
    <message>
        <source>Please enter your specified pages.</source>
        <translation>Please enter your specified pages.</translation>
    </message>
    <message>
        <source>You can only insert up to 50 pages.</source>
        <translation>You can only insert up to 50 pages.</translation>
    </message>
    <message>
        <source>You can only enter page numbers between 3 and 511</source>
        <translation>You can only enter page numbers between 3 and 511</translation>
    </message>
    <message>
        <source>You can only enter page numbers between 2 and 511</source>
        <translation>You can only enter page numbers between 2 and 511</translation>
    </message>
    <message>
        <source>Publishing</source>
        <translation>Publishing</translation>
    </message>
</context>
<context>
    <name>QDialogButtonBox</name>
    <message>
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancel</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
</context>
<context>
    <name>QGnomeTheme</name>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancel</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Close</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>%1 and %2</source>
        <translation>%1 and %2</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 or %2</translation>
    </message>
    <message>
        <source>Always on with %1</source>
        <translation>Always on with %1</translation>
    </message>
    <message>
        <source>Always on without %1</source>
        <translation>Always on without %1</translation>
    </message>
    <message>
        <source>Always on with %1 without %2</source>
        <translation>Always on with %1 without %2</translation>
    </message>
    <message>
        <source>Not with %1</source>
        <translation>Not with %1</translation>
    </message>
    <message>
        <source>Not installed: %1 (see Printer)</source>
        <translation>Not installed: %1 (see Printer)</translation>
    </message>
    <message>
        <source>Only with %1</source>
        <translation>Only with %1</translation>
    </message>
    <message>
        <source>Not with %1 without %2</source>
        <translation>Not with %1 without %2</translation>
    </message>
    <message>
        <source>Decided by the policy server</source>
        <translation>Decided by the policy server</translation>
    </message>
    <message>
        <source>Only %1 is left.</source>
        <translation>Only %1 is left.</translation>
    </message>
    <message>
        <source>This printer does not offer it.</source>
        <translation>This printer does not offer it.</translation>
    </message>
    <message>
        <source>This printer offers nothing else.</source>
        <translation>This printer offers nothing else.</translation>
    </message>
    <message>
        <source>Switch on %1 first.</source>
        <translation>Switch on %1 first.</translation>
    </message>
    <message>
        <source>Choose %1 first.</source>
        <translation>Choose %1 first.</translation>
    </message>
</context>
<context>
    <name>SheetView</name>
    <message>
        <source>Click to change: %1</source>
        <translation>Click to change: %1</translation>
    </message>
</context>
<context>
    <name>Spoken</name>
    <message>
        <source>In conflict with other settings</source>
        <translation>In conflict with other settings</translation>
    </message>
</context>
<context>
    <name>TelemetryDialog</name>
    <message>
        <source>Data Collection</source>
        <translation>Data Collection</translation>
    </message>
    <message>
        <source>We ask you to help improve our application and/or products by providing usage information.</source>
        <translation>We ask you to help improve our application and/or products by providing usage information.</translation>
    </message>
    <message>
        <source>The application DOES NOT collect any personal data.</source>
        <translation>The application DOES NOT collect any personal data.</translation>
    </message>
    <message>
        <source>Regarding data collection, please read the PRIVACY POLICY as follows.</source>
        <translation>Regarding data collection, please read the PRIVACY POLICY as follows.</translation>
    </message>
    <message>
        <source>Yes, I want to help improve your products</source>
        <translation>Yes, I want to help improve your products</translation>
    </message>
    <message>
        <source>No, I do not wish to take part in this feature</source>
        <translation>No, I do not wish to take part in this feature</translation>
    </message>
</context>
<context>
    <name>UserLoginTab</name>
    <message>
        <source>User Login</source>
        <translation>User Login</translation>
    </message>
    <message>
        <source>User login</source>
        <translation>User login</translation>
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
        <source>Value cannot contain the double quote (&quot;) character.</source>
        <translation>Value cannot contain the double quote (&quot;) character.</translation>
    </message>
    <message>
        <source>User name must be at least one character long.</source>
        <translation>User name must be at least one character long.</translation>
    </message>
</context>
<context>
    <name>WatermarkTab</name>
    <message>
        <source>Font</source>
        <translation>Font</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Style</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Fill</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Watermark</translation>
    </message>
    <message>
        <source>Watermark/Stamp</source>
        <translation>Watermark/Stamp</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Repeat watermark</source>
        <translation>Repeat watermark</translation>
    </message>
    <message>
        <source>Super watermark</source>
        <translation>Super watermark</translation>
    </message>
    <message>
        <source>Custom watermark</source>
        <translation>Custom watermark</translation>
    </message>
    <message>
        <source>New</source>
        <translation>New</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Custom</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Black</translation>
    </message>
    <message>
        <source>Enter a text first.</source>
        <translation>Enter a text first.</translation>
    </message>
    <message>
        <source>This text is in the list already.</source>
        <translation>This text is in the list already.</translation>
    </message>
    <message>
        <source>Choose a text of your own first.</source>
        <translation>Choose a text of your own first.</translation>
    </message>
    <message>
        <source>There is no such text of your own.</source>
        <translation>There is no such text of your own.</translation>
    </message>
    <message>
        <source>Watermark</source>
        <comment>caption</comment>
        <extracomment>Short, since it stands below a small picture. A hyphen may break the line.</extracomment>
        <translation>Watermark</translation>
    </message>
    <message>
        <source>Super watermark</source>
        <comment>caption</comment>
        <extracomment>Short, since it stands below a small picture. A hyphen may break the line.</extracomment>
        <translation>Super watermark</translation>
    </message>
</context>
<context>
    <name>adjustmentDialog</name>
    <message>
        <source>Master</source>
        <translation>Master</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Yellow</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Green</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blue</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Lightness</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contrast</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Custom</translation>
    </message>
    <message>
        <source>HSL(hue, saturation and lightness)</source>
        <translation>HSL(hue, saturation and lightness)</translation>
    </message>
    <message>
        <source>Color balance</source>
        <translation>Color balance</translation>
    </message>
    <message>
        <source>Hue Adjustment</source>
        <translation>Hue Adjustment</translation>
    </message>
    <message>
        <source>Color levels</source>
        <translation>Color levels</translation>
    </message>
    <message>
        <source>Adjustment Settings</source>
        <translation>Adjustment Settings</translation>
    </message>
    <message>
        <source>Modify</source>
        <translation>Modify</translation>
    </message>
</context>
<context>
    <name>monoDialog</name>
    <message>
        <source>Custom</source>
        <translation>Custom</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brightness</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contrast</translation>
    </message>
    <message>
        <source>Adjustment Settings</source>
        <translation>Adjustment Settings</translation>
    </message>
</context>
</TS>
