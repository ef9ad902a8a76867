<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>Über</translation>
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
        <translation>Datenerfassung</translation>
    </message>
    <message>
        <source>Legal notices</source>
        <translation>Rechtliche Hinweise</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>AccountEditDialog</name>
    <message>
        <source>Account ID:</source>
        <translation>Konto-ID:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Beschreibung:</translation>
    </message>
    <message>
        <source>New Account ID</source>
        <translation>Neue Konto-ID</translation>
    </message>
    <message>
        <source>Edit Account ID</source>
        <translation>Konto-ID bearbeiten</translation>
    </message>
</context>
<context>
    <name>AccountListDialog</name>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Account ID</source>
        <translation>Konto-ID</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Select an account first.</source>
        <translation>Wählen Sie zuerst ein Konto aus.</translation>
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
        <translation>Bitte führen Sie %1 nicht als root aus.</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Speichern unter...</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>It looks like your installed printers have changed.
Reloading list now.</source>
        <translation>Ihre installierten Drucker scheinen sich geändert zu haben.
Die Liste wird neu geladen.</translation>
    </message>
    <message>
        <source>Select a printer.</source>
        <translation>Wählen Sie einen Drucker aus.</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Erfolg</translation>
    </message>
    <message>
        <source>Settings applied.</source>
        <translation>Einstellungen übernommen.</translation>
    </message>
    <message>
        <source>Error: Printer does not exist or lpoptions failed.</source>
        <translation>Fehler: Der Drucker existiert nicht oder lpoptions ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>The folder %1 is a link, or it belongs to somebody else (%2). Your settings are neither read from it nor saved in it. Ask an administrator to remove it or to make you its owner.</source>
        <translation>Der Ordner %1 ist ein Verweis oder gehört jemand anderem (%2). Ihre Einstellungen werden weder von dort gelesen noch dort gespeichert. Bitten Sie einen Administrator, ihn zu entfernen oder Ihnen zu übereignen.</translation>
    </message>
    <message>
        <source>See %1</source>
        <comment>pages with marks</comment>
        <translation>Siehe %1</translation>
    </message>
    <message>
        <source>The PPD of %1 can&apos;t be read.</source>
        <translation>Die PPD von %1 ist nicht lesbar.</translation>
    </message>
    <message>
        <source>Applying...</source>
        <translation>Wird angewendet...</translation>
    </message>
    <message>
        <source>Print server does not answer.</source>
        <translation>Der Druckserver antwortet nicht.</translation>
    </message>
    <message>
        <source>The settings could not be saved in %1.</source>
        <translation>Die Einstellungen konnten nicht in %1 gespeichert werden.</translation>
    </message>
    <message>
        <source>The print system may use them all the same.</source>
        <translation>Das Drucksystem verwendet sie möglicherweise trotzdem.</translation>
    </message>
</context>
<context>
    <name>BixTabWidget</name>
    <message>
        <source>Something has changed here.</source>
        <translation>Hier hat sich etwas geändert.</translation>
    </message>
</context>
<context>
    <name>BookletTab</name>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Left edge binding</source>
        <translation>Bindung links</translation>
    </message>
    <message>
        <source>Right edge binding</source>
        <translation>Bindung rechts</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Broschüre</translation>
    </message>
    <message>
        <source>Booklet fold</source>
        <translation>Broschürenfalz</translation>
    </message>
</context>
<context>
    <name>ChangeReport</name>
    <message>
        <source>The policy server</source>
        <translation>Der Richtlinienserver</translation>
    </message>
    <message>
        <source>Switched off: %1.</source>
        <translation>Ausgeschaltet: %1.</translation>
    </message>
    <message>
        <source>Changed: %1.</source>
        <translation>Geändert: %1.</translation>
    </message>
    <message>
        <source>%1 switched off: %2.</source>
        <translation>%1 hat ausgeschaltet: %2.</translation>
    </message>
    <message>
        <source>%1 changed: %2.</source>
        <translation>%1 hat geändert: %2.</translation>
    </message>
    <message>
        <source>%1 was switched off by %2.</source>
        <translation>Durch %2 ausgeschaltet: %1.</translation>
    </message>
    <message>
        <source>%1 were switched off by %2.</source>
        <translation>Durch %2 ausgeschaltet: %1.</translation>
    </message>
    <message>
        <source>Changed by %2: %1.</source>
        <translation>Durch %2 geändert: %1.</translation>
    </message>
    <message>
        <source>Switch on again</source>
        <translation>Wieder einschalten</translation>
    </message>
    <message>
        <source>Change back</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Adjusted to this printer: %1.</source>
        <translation>An diesen Drucker angepasst: %1.</translation>
    </message>
</context>
<context>
    <name>ColorGroup</name>
    <message>
        <source>Full color</source>
        <translation>Vollfarbe</translation>
    </message>
    <message>
        <source>Black &amp; white</source>
        <translation>Schwarzweiß</translation>
    </message>
</context>
<context>
    <name>FKPTab</name>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
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
        <translation>Anmeldename</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>No notifications for policy conflicts</source>
        <translation>Keine Hinweise bei Richtlinienkonflikten</translation>
    </message>
    <message>
        <source>Continue printing</source>
        <translation>Weiterdrucken</translation>
    </message>
    <message>
        <source>Cancel printing</source>
        <translation>Drucken abbrechen</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>Unable to connect to the server.</source>
        <translation>Es kann keine Verbindung zum Server hergestellt werden.</translation>
    </message>
    <message>
        <source>Server, Port, and Login user information must be filled out.</source>
        <translation>Server, Port und Anmeldedaten müssen ausgefüllt sein.</translation>
    </message>
    <message>
        <source>You must click Verify after making changes.</source>
        <translation>Nach Änderungen müssen Sie auf „Prüfen“ klicken.</translation>
    </message>
    <message>
        <source>Login failed. The user name or password you entered is incorrect.</source>
        <translation>Anmeldung fehlgeschlagen. Der eingegebene Benutzername oder das Passwort ist falsch.</translation>
    </message>
    <message>
        <source>An unspecified error occured.</source>
        <translation>Ein unbekannter Fehler ist aufgetreten.</translation>
    </message>
    <message>
        <source>Server and user credentials have been authenticated and policies have been applied.

Credentials and policies will be checked again during printing.
</source>
        <translation>Server und Anmeldedaten wurden bestätigt und die Richtlinien angewendet.

Anmeldedaten und Richtlinien werden beim Drucken erneut geprüft.
</translation>
    </message>
    <message>
        <source>You do not have permission to print.</source>
        <translation>Sie sind nicht zum Drucken berechtigt.</translation>
    </message>
</context>
<context>
    <name>FinishingTab</name>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Offset jobs</source>
        <translation>Aufträge versetzen</translation>
    </message>
    <message>
        <source>Rotate copies</source>
        <translation>Kopien drehen</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Tri-Fold</source>
        <translation>Dreifachfalz</translation>
    </message>
    <message>
        <source>Bi-Fold</source>
        <translation>Einfachfalz</translation>
    </message>
    <message>
        <source>Staple:</source>
        <translation>Heften:</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Lochen</translation>
    </message>
    <message>
        <source>Print side</source>
        <translation>Druckseite</translation>
    </message>
    <message>
        <source>Direction of fold</source>
        <translation>Falzrichtung</translation>
    </message>
    <message>
        <source>Number of sheets</source>
        <translation>Anzahl der Blätter</translation>
    </message>
    <message>
        <source>Staple location:</source>
        <translation>Heftposition:</translation>
    </message>
    <message>
        <source>Staple method</source>
        <translation>Heftart</translation>
    </message>
    <message>
        <source>Punch Method:</source>
        <translation>Lochungsart:</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Finishing</translation>
    </message>
    <message>
        <source>Separation</source>
        <translation>Trennung</translation>
    </message>
    <message>
        <source>Hole punch</source>
        <translation>Lochen</translation>
    </message>
</context>
<context>
    <name>GeneralTab</name>
    <message>
        <source>Basic</source>
        <translation>Basis</translation>
    </message>
    <message>
        <source>Media size</source>
        <translation>Papierformat</translation>
    </message>
    <message>
        <source>Media type</source>
        <translation>Medientyp</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Papierquelle</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Ausgabefach</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Sortieren</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Duplex</source>
        <translation>Duplex</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>Lange Kante</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>Kurze Kante</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Print size</source>
        <translation>Druckformat</translation>
    </message>
</context>
<context>
    <name>ImagingTab</name>
    <message>
        <source>Trapping</source>
        <translation>Überfüllung</translation>
    </message>
    <message>
        <source>Gloss mode</source>
        <translation>Glanzmodus</translation>
    </message>
    <message>
        <source>CIE optimization</source>
        <translation>CIE-Optimierung</translation>
    </message>
    <message>
        <source>Halftone screen</source>
        <translation>Rasterung</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Color reproduction</source>
        <translation>Farbwiedergabe</translation>
    </message>
    <message>
        <source>Color conversion</source>
        <translation>Farbumwandlung</translation>
    </message>
    <message>
        <source>VRS</source>
        <translation>VRS</translation>
    </message>
    <message>
        <source>Print grays with black toner</source>
        <translation>Grautöne mit Schwarztoner drucken</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Imaging</source>
        <translation>Bildqualität</translation>
    </message>
    <message>
        <source>Print quality</source>
        <translation>Druckqualität</translation>
    </message>
    <message>
        <source>LeanPrint</source>
        <translation>LeanPrint</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Adjustment</source>
        <translation>Anpassung</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Einstellungen...</translation>
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
        <translation>Die Konto-ID muss aus 1 bis 8 Ziffern bestehen</translation>
    </message>
    <message>
        <source>Private print</source>
        <translation>Vertraulicher Druck</translation>
    </message>
    <message>
        <source>Custom box</source>
        <translation>Benutzerbox</translation>
    </message>
    <message>
        <source>Value cannot contain the double quote (&quot;) character.</source>
        <translation>Der Wert darf kein doppeltes Anführungszeichen (&quot;) enthalten.</translation>
    </message>
    <message>
        <source>Job accounting</source>
        <translation>Auftragsabrechnung</translation>
    </message>
    <message>
        <source>Job accounting</source>
        <comment>caption</comment>
        <extracomment>Short, since it stands below a small picture.</extracomment>
        <translation>Abrechnung</translation>
    </message>
    <message>
        <source>Select account ID</source>
        <translation>Konto-ID auswählen</translation>
    </message>
    <message>
        <source>Account ID List</source>
        <translation>Konto-ID-Liste</translation>
    </message>
    <message>
        <source>Use specific account ID</source>
        <translation>Bestimmte Konto-ID</translation>
    </message>
    <message>
        <source>You must add an account ID to the list.</source>
        <translation>Sie müssen der Liste eine Konto-ID hinzufügen.</translation>
    </message>
    <message>
        <source>Job e-mail notification</source>
        <translation>E-Mail-Benachrichtigung</translation>
    </message>
    <message>
        <source>Job e-mail notification</source>
        <comment>caption</comment>
        <extracomment>Short, since it stands below a small picture.</extracomment>
        <translation>E-Mail-Nachricht</translation>
    </message>
    <message>
        <source>Enter a valid e-mail address.</source>
        <translation>Geben Sie eine gültige E-Mail-Adresse ein.</translation>
    </message>
    <message>
        <source>Enter the e-mail address in a valid format.
For example: %1</source>
        <translation>Geben Sie die E-Mail-Adresse in einem gültigen Format ein.
Zum Beispiel: %1</translation>
    </message>
    <message>
        <source>E-mail address cannot contain any spaces.</source>
        <translation>Die E-Mail-Adresse darf keine Leerzeichen enthalten.</translation>
    </message>
    <message>
        <source>E-mail address should use only ASCII characters.</source>
        <translation>Die E-Mail-Adresse darf nur ASCII-Zeichen enthalten.</translation>
    </message>
    <message>
        <source>User Login</source>
        <translation>Benutzeranmeldung</translation>
    </message>
    <message>
        <source>User login</source>
        <extracomment>Short, since it stands below a small picture.</extracomment>
        <translation>Anmeldung</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Passwort:</translation>
    </message>
    <message>
        <source>User name must be at least one character long.</source>
        <translation>Der Benutzername muss mindestens ein Zeichen lang sein.</translation>
    </message>
    <message>
        <source>Job name</source>
        <translation>Auftragsname</translation>
    </message>
    <message>
        <source>Overwrite job name:</source>
        <translation>Auftragsnamen überschreiben:</translation>
    </message>
    <message>
        <source>Application defined</source>
        <translation>Von der Anwendung</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Benutzerdefiniert</translation>
    </message>
    <message>
        <source>Use job name + date and time</source>
        <translation>Name + Datum und Uhrzeit</translation>
    </message>
    <message>
        <source>Replace existing file</source>
        <translation>Datei ersetzen</translation>
    </message>
    <message>
        <source>The custom job name field requires a name within a 64 character limit.</source>
        <translation>Das Feld für den Auftragsnamen benötigt einen Namen mit höchstens 64 Zeichen.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Job settings</source>
        <translation>Auftragseinstellungen</translation>
    </message>
    <message>
        <source>Job storage:</source>
        <extracomment>Short, since it stands below a small picture.</extracomment>
        <translation>Speichern:</translation>
    </message>
    <message>
        <source>Access code</source>
        <translation>Zugangscode</translation>
    </message>
    <message>
        <source>Box number</source>
        <translation>Boxnummer</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Job storage</source>
        <translation>Auftragsspeicherung</translation>
    </message>
    <message>
        <source>Proof and hold</source>
        <translation>Prüfen und anhalten</translation>
    </message>
    <message>
        <source>Access code must be 4 numbers in length.</source>
        <translation>Der Zugangscode muss aus 4 Ziffern bestehen.</translation>
    </message>
    <message>
        <source>Enter a custom box number between 1 and 1000.</source>
        <translation>Geben Sie eine Boxnummer zwischen 1 und 1000 ein.</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Auftrag</translation>
    </message>
    <message>
        <source>This Account ID already exists.</source>
        <translation>Diese Konto-ID ist bereits vorhanden.</translation>
    </message>
    <message>
        <source>Account ID Error</source>
        <translation>Fehler bei der Konto-ID</translation>
    </message>
    <message>
        <source>Custom job name</source>
        <translation>Eigener Auftragsname</translation>
    </message>
</context>
<context>
    <name>LicenseDialog</name>
    <message>
        <source>Legal Notices</source>
        <translation>Rechtliche Hinweise</translation>
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
        <translation>%1 und eine weitere</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
</context>
<context>
    <name>OptionLabels</name>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
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
        <translation>Aus</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
</context>
<context>
    <name>PasswordPrompt</name>
    <message>
        <source>Password Prompt</source>
        <translation>Passwortabfrage</translation>
    </message>
    <message>
        <source>Please enter the root password.</source>
        <translation>Bitte geben Sie das Root-Passwort ein.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Could not authorize.</source>
        <translation>Autorisierung fehlgeschlagen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be handed to the program that changes the printer: only letters, digits and %2 can.</source>
        <translation>„%1“ kann dem Programm, das den Drucker ändert, nicht übergeben werden: nur Buchstaben, Ziffern und %2 sind möglich.</translation>
    </message>
    <message>
        <source>The program %1 is missing. An administrator has to install it in a folder of root&apos;s search path, such as /usr/sbin.</source>
        <translation>Das Programm %1 fehlt. Ein Administrator muss es in einem Ordner aus dem Suchpfad von root installieren, etwa in /usr/sbin.</translation>
    </message>
    <message>
        <source>sudo wants your own password.</source>
        <translation>sudo verlangt Ihr eigenes Passwort.</translation>
    </message>
    <message>
        <source>su wants the administrator&apos;s password (root).</source>
        <translation>su verlangt das Passwort des Administrators (root).</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Methode</translation>
    </message>
</context>
<context>
    <name>PrinterStatus</name>
    <message>
        <source>Idle</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Druckt</translation>
    </message>
    <message>
        <source>Error: Printer does not exist or lpstat failed.</source>
        <translation>Fehler: Der Drucker existiert nicht oder lpstat ist fehlgeschlagen.</translation>
    </message>
</context>
<context>
    <name>PrinterTab</name>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>Installed options</source>
        <translation>Installierte Optionen</translation>
    </message>
    <message>
        <source>Root access is required to make changes to installable options</source>
        <translation>Zum Ändern installierbarer Optionen sind Root-Rechte nötig</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Select a printer.</source>
        <translation>Wählen Sie einen Drucker aus.</translation>
    </message>
    <message>
        <source>Asking...</source>
        <translation>Wird abgefragt...</translation>
    </message>
    <message>
        <source>The print system (CUPS) does not answer, so no printer can be listed.</source>
        <translation>Das Drucksystem (CUPS) antwortet nicht; daher können keine Drucker aufgeführt werden.</translation>
    </message>
    <message>
        <source>There is no Brixola printer yet. A print queue counts as one if it uses the PPD of a Brixola or NV-RATEX printer; a driverless one does not. Add the printer with that PPD in the print settings of your system or with lpadmin.</source>
        <translation>Es gibt noch keinen Brixola-Drucker. Als solcher zählt eine Druckerwarteschlange, die die PPD eines Druckers von Brixola oder NV-RATEX verwendet; eine treiberlose zählt nicht. Fügen Sie den Drucker mit dieser PPD in den Druckeinstellungen Ihres Systems oder mit lpadmin hinzu.</translation>
    </message>
    <message>
        <source>Look again</source>
        <translation>Erneut suchen</translation>
    </message>
</context>
<context>
    <name>ProfileDialog</name>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Bearbeiten...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>Save Profiles</source>
        <translation>Profile speichern</translation>
    </message>
    <message>
        <source>Edit Profile</source>
        <translation>Profil bearbeiten</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Detail</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Element</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Select profile:</source>
        <translation>Profil auswählen:</translation>
    </message>
    <message>
        <source>Factory Default</source>
        <translation>Werkseinstellung</translation>
    </message>
    <message>
        <source>Resolve the marked conflicts first.</source>
        <translation>Lösen Sie zuerst die markierten Konflikte.</translation>
    </message>
    <message>
        <source>Select a profile of your own first.</source>
        <translation>Wählen Sie zuerst ein eigenes Profil aus.</translation>
    </message>
    <message>
        <source>The profile does not say which printer these values are of.</source>
        <translation>Das Profil sagt nicht, zu welchem Drucker diese Werte gehören.</translation>
    </message>
    <message>
        <source>There is no PPD of %1 here to name these values. An administrator can add it with brixola-press-desk-ppds.</source>
        <translation>Von %1 liegt hier keine PPD vor, die diese Werte benennt. Ein Administrator kann sie mit brixola-press-desk-ppds hinzufügen.</translation>
    </message>
</context>
<context>
    <name>ProfileEditDialog</name>
    <message>
        <source>Description:</source>
        <translation>Beschreibung:</translation>
    </message>
    <message>
        <source>Edit Profile</source>
        <translation>Profil bearbeiten</translation>
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
        <translation>Geben Sie zuerst einen Namen ein.</translation>
    </message>
    <message>
        <source>This name is reserved.</source>
        <translation>Dieser Name ist reserviert.</translation>
    </message>
    <message>
        <source>A name can&apos;t begin with a dot, nor contain / &quot; ` or ;</source>
        <translation>Ein Name darf nicht mit einem Punkt beginnen und weder / noch &quot; ` oder ; enthalten</translation>
    </message>
    <message>
        <source>The name or the description is too long.</source>
        <translation>Der Name oder die Beschreibung ist zu lang.</translation>
    </message>
    <message>
        <source>The profile could not be saved.</source>
        <translation>Das Profil konnte nicht gespeichert werden.</translation>
    </message>
</context>
<context>
    <name>ProfileReader</name>
    <message>
        <source>Profiles</source>
        <translation>Profile</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>Basis</translation>
    </message>
    <message>
        <source>Print size</source>
        <translation>Druckformat</translation>
    </message>
    <message>
        <source>Media type</source>
        <translation>Medientyp</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Papierquelle</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Ausgabefach</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Sortieren</translation>
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
        <translation>Broschüre</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Finishing</translation>
    </message>
    <message>
        <source>Separation</source>
        <translation>Trennung</translation>
    </message>
    <message>
        <source>Folding mode</source>
        <translation>Falzart</translation>
    </message>
    <message>
        <source>Folding side</source>
        <translation>Falzseite</translation>
    </message>
    <message>
        <source>Folding direction</source>
        <translation>Falzrichtung</translation>
    </message>
    <message>
        <source>Folding method</source>
        <translation>Falzmethode</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Heften</translation>
    </message>
    <message>
        <source>Staple method</source>
        <translation>Heftart</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Lochen</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Imaging</source>
        <translation>Bildqualität</translation>
    </message>
    <message>
        <source>Trapping</source>
        <translation>Überfüllung</translation>
    </message>
    <message>
        <source>Gloss mode</source>
        <translation>Glanzmodus</translation>
    </message>
    <message>
        <source>CIE optimization</source>
        <translation>CIE-Optimierung</translation>
    </message>
    <message>
        <source>Halftone screen</source>
        <translation>Rasterung</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>LeanPrint</source>
        <translation>LeanPrint</translation>
    </message>
    <message>
        <source>HSL/Color Balance</source>
        <translation>HSL/Farbbalance</translation>
    </message>
    <message>
        <source>Color adjustment</source>
        <translation>Farbanpassung</translation>
    </message>
    <message>
        <source>Monochrome adjustment</source>
        <translation>Schwarzweiß-Anpassung</translation>
    </message>
    <message>
        <source>Color mode</source>
        <translation>Farbmodus</translation>
    </message>
    <message>
        <source>Color reproduction</source>
        <translation>Farbwiedergabe</translation>
    </message>
    <message>
        <source>Color conversion</source>
        <translation>Farbumwandlung</translation>
    </message>
    <message>
        <source>VRS</source>
        <translation>VRS</translation>
    </message>
    <message>
        <source>Print grays with black toner</source>
        <translation>Grautöne nur in Schwarz</translation>
    </message>
    <message>
        <source>Publishing</source>
        <translation>Publishing</translation>
    </message>
    <message>
        <source>Cover mode</source>
        <translation>Deckblattmodus</translation>
    </message>
    <message>
        <source>Page insert</source>
        <translation>Seiteneinfügung</translation>
    </message>
    <message>
        <source>Transparency interleaving</source>
        <translation>Folienzwischenblätter</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Auftrag</translation>
    </message>
    <message>
        <source>Job settings</source>
        <translation>Auftragseinstellungen</translation>
    </message>
    <message>
        <source>Job accounting</source>
        <translation>Auftragsabrechnung</translation>
    </message>
    <message>
        <source>Job name</source>
        <translation>Auftragsname</translation>
    </message>
    <message>
        <source>Job e-mail notification</source>
        <translation>E-Mail-Benachrichtigung</translation>
    </message>
    <message>
        <source>User login</source>
        <translation>Anmeldung</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Wasserzeichen</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Private print</source>
        <translation>Vertraulicher Druck</translation>
    </message>
    <message>
        <source>Custom box</source>
        <translation>Benutzerbox</translation>
    </message>
    <message>
        <source>Custom watermark</source>
        <translation>Eigenes Wasserzeichen</translation>
    </message>
    <message>
        <source>Black &amp; white</source>
        <translation>Schwarzweiß</translation>
    </message>
</context>
<context>
    <name>ProfileSaveDialog</name>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Save Profile</source>
        <translation>Profil speichern</translation>
    </message>
    <message>
        <source>The profile could not be added. A maximum profile count of 25 has been reached.</source>
        <translation>Das Profil konnte nicht hinzugefügt werden. Die Höchstzahl von 25 Profilen ist erreicht.</translation>
    </message>
    <message>
        <source>Select a printer.</source>
        <translation>Wählen Sie einen Drucker aus.</translation>
    </message>
    <message>
        <source>This name is reserved</source>
        <translation>Dieser Name ist reserviert</translation>
    </message>
    <message>
        <source>You must enter a profile name</source>
        <translation>Sie müssen einen Profilnamen eingeben</translation>
    </message>
</context>
<context>
    <name>PublishingTab</name>
    <message>
        <source>Cover mode:</source>
        <translation>Deckblattmodus:</translation>
    </message>
    <message>
        <source>Cover mode:</source>
        <comment>caption</comment>
        <translation>Deckblatt:</translation>
    </message>
    <message>
        <source>Media for cover:</source>
        <translation>Medium für Deckblatt:</translation>
    </message>
    <message>
        <source>Page insert:</source>
        <translation>Einlageblätter:</translation>
    </message>
    <message>
        <source>Page insert:</source>
        <comment>caption</comment>
        <translation>Einlagen:</translation>
    </message>
    <message>
        <source>Media for page:</source>
        <translation>Medium für Einlageblatt:</translation>
    </message>
    <message>
        <source>Transparency interleaving:</source>
        <translation>Folienzwischenblätter:</translation>
    </message>
    <message>
        <source>Transparency interleaving:</source>
        <comment>caption</comment>
        <translation>Zwischen-blätter:</translation>
    </message>
    <message>
        <source>Media for backing:</source>
        <translation>Medium für Zwischenblatt:</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>Vorne</translation>
    </message>
    <message>
        <source>Front and back</source>
        <translation>Vorne und hinten</translation>
    </message>
    <message>
        <source>Outside</source>
        <translation>Außen</translation>
    </message>
    <message>
        <source>Inside</source>
        <translation>Innen</translation>
    </message>
    <message>
        <source>Print onto front</source>
        <translation>Vorderseite bedrucken</translation>
    </message>
    <message>
        <source>Print onto back</source>
        <translation>Rückseite bedrucken</translation>
    </message>
    <message>
        <source>Print onto backing</source>
        <translation>Unterlage bedrucken</translation>
    </message>
    <message>
        <source>Print onto:</source>
        <translation>Bedrucken:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Hinten</translation>
    </message>
    <message>
        <source>Insert before pages:</source>
        <translation>Einfügen vor Seiten:</translation>
    </message>
    <message>
        <source>Generic error message</source>
        <translation>Allgemeine Fehlermeldung</translation>
    </message>
    <message>
        <source>Please type a page range.</source>
        <translation>Geben Sie einen Seitenbereich ein.</translation>
    </message>
    <message>
        <source>Please enter your specified pages.</source>
        <translation>Geben Sie die gewünschten Seiten ein.</translation>
    </message>
    <message>
        <source>You can only insert up to 50 pages.</source>
        <translation>Sie können höchstens 50 Seiten einfügen.</translation>
    </message>
    <message>
        <source>You can only enter page numbers between 3 and 511</source>
        <translation>Sie können nur Seitenzahlen zwischen 3 und 511 eingeben</translation>
    </message>
    <message>
        <source>You can only enter page numbers between 2 and 511</source>
        <translation>Sie können nur Seitenzahlen zwischen 2 und 511 eingeben</translation>
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
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
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
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
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
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 oder %2</translation>
    </message>
    <message>
        <source>Always on with %1</source>
        <translation>Immer ein mit %1</translation>
    </message>
    <message>
        <source>Always on without %1</source>
        <translation>Immer ein ohne %1</translation>
    </message>
    <message>
        <source>Always on with %1 without %2</source>
        <translation>Immer ein mit %1 ohne %2</translation>
    </message>
    <message>
        <source>Not with %1</source>
        <translation>Nicht mit %1</translation>
    </message>
    <message>
        <source>Not installed: %1 (see Printer)</source>
        <translation>Nicht installiert: %1 (siehe Drucker)</translation>
    </message>
    <message>
        <source>Only with %1</source>
        <translation>Nur mit %1</translation>
    </message>
    <message>
        <source>Not with %1 without %2</source>
        <translation>Nicht mit %1 ohne %2</translation>
    </message>
    <message>
        <source>Decided by the policy server</source>
        <translation>Vom Richtlinienserver festgelegt</translation>
    </message>
    <message>
        <source>Only %1 is left.</source>
        <translation>Nur „%1“ ist übrig.</translation>
    </message>
    <message>
        <source>This printer does not offer it.</source>
        <translation>Dieser Drucker bietet das nicht.</translation>
    </message>
    <message>
        <source>This printer offers nothing else.</source>
        <translation>Dieser Drucker bietet nichts anderes.</translation>
    </message>
    <message>
        <source>Switch on %1 first.</source>
        <translation>Schalten Sie zuerst „%1“ ein.</translation>
    </message>
    <message>
        <source>Choose %1 first.</source>
        <translation>Wählen Sie zuerst „%1“.</translation>
    </message>
</context>
<context>
    <name>SheetView</name>
    <message>
        <source>Click to change: %1</source>
        <translation>Zum Ändern klicken: %1</translation>
    </message>
</context>
<context>
    <name>Spoken</name>
    <message>
        <source>In conflict with other settings</source>
        <translation>Im Konflikt mit anderen Einstellungen</translation>
    </message>
</context>
<context>
    <name>TelemetryDialog</name>
    <message>
        <source>Data Collection</source>
        <translation>Datenerfassung</translation>
    </message>
    <message>
        <source>We ask you to help improve our application and/or products by providing usage information.</source>
        <translation>Bitte helfen Sie uns, unsere Anwendung und/oder Produkte zu verbessern, indem Sie Nutzungsdaten bereitstellen.</translation>
    </message>
    <message>
        <source>The application DOES NOT collect any personal data.</source>
        <translation>Die Anwendung erfasst KEINE personenbezogenen Daten.</translation>
    </message>
    <message>
        <source>Regarding data collection, please read the PRIVACY POLICY as follows.</source>
        <translation>Bitte lesen Sie zur Datenerfassung die folgende DATENSCHUTZERKLÄRUNG.</translation>
    </message>
    <message>
        <source>Yes, I want to help improve your products</source>
        <translation>Ja, ich möchte zur Verbesserung Ihrer Produkte beitragen</translation>
    </message>
    <message>
        <source>No, I do not wish to take part in this feature</source>
        <translation>Nein, ich möchte an dieser Funktion nicht teilnehmen</translation>
    </message>
</context>
<context>
    <name>UserLoginTab</name>
    <message>
        <source>User Login</source>
        <translation>Benutzeranmeldung</translation>
    </message>
    <message>
        <source>User login</source>
        <translation>Anmeldung</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Value cannot contain the double quote (&quot;) character.</source>
        <translation>Der Wert darf kein doppeltes Anführungszeichen (&quot;) enthalten.</translation>
    </message>
    <message>
        <source>User name must be at least one character long.</source>
        <translation>Der Benutzername muss mindestens ein Zeichen lang sein.</translation>
    </message>
</context>
<context>
    <name>WatermarkTab</name>
    <message>
        <source>Font</source>
        <translation>Schriftart</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Füllung</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Wasserzeichen</translation>
    </message>
    <message>
        <source>Watermark/Stamp</source>
        <translation>Wasserzeichen/Stempel</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Repeat watermark</source>
        <translation>Wasserzeichen wiederholen</translation>
    </message>
    <message>
        <source>Super watermark</source>
        <translation>Super-Wasserzeichen</translation>
    </message>
    <message>
        <source>Custom watermark</source>
        <translation>Eigenes Wasserzeichen</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Benutzerdefiniert</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>Enter a text first.</source>
        <translation>Geben Sie zuerst einen Text ein.</translation>
    </message>
    <message>
        <source>This text is in the list already.</source>
        <translation>Dieser Text steht schon in der Liste.</translation>
    </message>
    <message>
        <source>Choose a text of your own first.</source>
        <translation>Wählen Sie zuerst einen eigenen Text.</translation>
    </message>
    <message>
        <source>There is no such text of your own.</source>
        <translation>Diesen Text haben Sie nicht angelegt.</translation>
    </message>
    <message>
        <source>Watermark</source>
        <comment>caption</comment>
        <extracomment>Short, since it stands below a small picture. A hyphen may break the line.</extracomment>
        <translation>Wasser-zeichen</translation>
    </message>
    <message>
        <source>Super watermark</source>
        <comment>caption</comment>
        <extracomment>Short, since it stands below a small picture. A hyphen may break the line.</extracomment>
        <translation>Super-Wasser-zeichen</translation>
    </message>
</context>
<context>
    <name>adjustmentDialog</name>
    <message>
        <source>Master</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Benutzerdefiniert</translation>
    </message>
    <message>
        <source>HSL(hue, saturation and lightness)</source>
        <translation>HSL (Farbton, Sättigung und Helligkeit)</translation>
    </message>
    <message>
        <source>Color balance</source>
        <translation>Farbbalance</translation>
    </message>
    <message>
        <source>Hue Adjustment</source>
        <translation>Farbtonanpassung</translation>
    </message>
    <message>
        <source>Color levels</source>
        <translation>Farbanteile</translation>
    </message>
    <message>
        <source>Adjustment Settings</source>
        <translation>Anpassung</translation>
    </message>
    <message>
        <source>Modify</source>
        <translation>Ändern</translation>
    </message>
</context>
<context>
    <name>monoDialog</name>
    <message>
        <source>Custom</source>
        <translation>Benutzerdefiniert</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Adjustment Settings</source>
        <translation>Anpassung</translation>
    </message>
</context>
</TS>
