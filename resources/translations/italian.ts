<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en_US">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Press Desk</source>
        <translation>Press Desk</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versione</translation>
    </message>
    <message>
        <source>Data collection</source>
        <translation>Raccolta dati</translation>
    </message>
    <message>
        <source>Legal notices</source>
        <translation>Note legali</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>AccountEditDialog</name>
    <message>
        <source>Account ID:</source>
        <translation>ID conto:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Descrizione:</translation>
    </message>
    <message>
        <source>New Account ID</source>
        <translation>Nuovo ID conto</translation>
    </message>
    <message>
        <source>Edit Account ID</source>
        <translation>Modifica ID conto</translation>
    </message>
</context>
<context>
    <name>AccountListDialog</name>
    <message>
        <source>New</source>
        <translation>Nuovo</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifica</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Account ID</source>
        <translation>ID conto</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descrizione</translation>
    </message>
    <message>
        <source>Select an account first.</source>
        <translation>Selezionare prima un conto.</translation>
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
        <translation>Non eseguire %1 come root.</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Salva con nome...</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profili</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>It looks like your installed printers have changed.
Reloading list now.</source>
        <translation>Sembra che le stampanti installate siano cambiate.
L&apos;elenco viene ricaricato.</translation>
    </message>
    <message>
        <source>Select a printer.</source>
        <translation>Selezionare una stampante.</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Operazione riuscita</translation>
    </message>
    <message>
        <source>Settings applied.</source>
        <translation>Impostazioni applicate.</translation>
    </message>
    <message>
        <source>Error: Printer does not exist or lpoptions failed.</source>
        <translation>Errore: la stampante non esiste o lpoptions non è riuscito.</translation>
    </message>
    <message>
        <source>The folder %1 is a link, or it belongs to somebody else (%2). Your settings are neither read from it nor saved in it. Ask an administrator to remove it or to make you its owner.</source>
        <translation>La cartella %1 è un collegamento o appartiene a qualcun altro (%2). Le impostazioni non vengono né lette da essa né salvate in essa. Chiedere a un amministratore di rimuoverla o di assegnarla al proprio utente.</translation>
    </message>
    <message>
        <source>See %1</source>
        <comment>pages with marks</comment>
        <translation>Vedere %1</translation>
    </message>
    <message>
        <source>The PPD of %1 can&apos;t be read.</source>
        <translation>Il PPD di %1 non è leggibile.</translation>
    </message>
    <message>
        <source>Applying...</source>
        <translation>Applicazione in corso...</translation>
    </message>
    <message>
        <source>Print server does not answer.</source>
        <translation>Il server di stampa non risponde.</translation>
    </message>
    <message>
        <source>The settings could not be saved in %1.</source>
        <translation>Impossibile salvare le impostazioni in %1.</translation>
    </message>
    <message>
        <source>The print system may use them all the same.</source>
        <translation>Il sistema di stampa potrebbe usarle comunque.</translation>
    </message>
</context>
<context>
    <name>BixTabWidget</name>
    <message>
        <source>Something has changed here.</source>
        <translation>Qui qualcosa è cambiato.</translation>
    </message>
</context>
<context>
    <name>BookletTab</name>
    <message>
        <source>Off</source>
        <translation>Disattivato</translation>
    </message>
    <message>
        <source>Left edge binding</source>
        <translation>Rilegatura a sinistra</translation>
    </message>
    <message>
        <source>Right edge binding</source>
        <translation>Rilegatura a destra</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Opuscolo</translation>
    </message>
    <message>
        <source>Booklet fold</source>
        <translation>Piegatura a opuscolo</translation>
    </message>
</context>
<context>
    <name>ChangeReport</name>
    <message>
        <source>The policy server</source>
        <translation>Il server dei criteri</translation>
    </message>
    <message>
        <source>Switched off: %1.</source>
        <translation>Disattivato: %1.</translation>
    </message>
    <message>
        <source>Changed: %1.</source>
        <translation>Modificato: %1.</translation>
    </message>
    <message>
        <source>%1 switched off: %2.</source>
        <translation>%1 ha disattivato: %2.</translation>
    </message>
    <message>
        <source>%1 changed: %2.</source>
        <translation>%1 ha modificato: %2.</translation>
    </message>
    <message>
        <source>%1 was switched off by %2.</source>
        <translation>Disattivato da %2: %1.</translation>
    </message>
    <message>
        <source>%1 were switched off by %2.</source>
        <translation>Disattivati da %2: %1.</translation>
    </message>
    <message>
        <source>Changed by %2: %1.</source>
        <translation>Modificato da %2: %1.</translation>
    </message>
    <message>
        <source>Switch on again</source>
        <translation>Riattiva</translation>
    </message>
    <message>
        <source>Change back</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Adjusted to this printer: %1.</source>
        <translation>Adattato a questa stampante: %1.</translation>
    </message>
</context>
<context>
    <name>ColorGroup</name>
    <message>
        <source>Full color</source>
        <translation>A colori</translation>
    </message>
    <message>
        <source>Black &amp; white</source>
        <translation>Bianco e nero</translation>
    </message>
</context>
<context>
    <name>FKPTab</name>
    <message>
        <source>Off</source>
        <translation>Disattivato</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Attivato</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>Login user name</source>
        <translation>Nome utente di accesso</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>No notifications for policy conflicts</source>
        <translation>Nessuna notifica per conflitti con i criteri</translation>
    </message>
    <message>
        <source>Continue printing</source>
        <translation>Continua la stampa</translation>
    </message>
    <message>
        <source>Cancel printing</source>
        <translation>Annulla la stampa</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Verifica</translation>
    </message>
    <message>
        <source>Unable to connect to the server.</source>
        <translation>Impossibile connettersi al server.</translation>
    </message>
    <message>
        <source>Server, Port, and Login user information must be filled out.</source>
        <translation>È necessario compilare server, porta e dati di accesso dell&apos;utente.</translation>
    </message>
    <message>
        <source>You must click Verify after making changes.</source>
        <translation>Dopo aver apportato modifiche è necessario fare clic su Verifica.</translation>
    </message>
    <message>
        <source>Login failed. The user name or password you entered is incorrect.</source>
        <translation>Accesso non riuscito. Il nome utente o la password immessi non sono corretti.</translation>
    </message>
    <message>
        <source>An unspecified error occured.</source>
        <translation>Si è verificato un errore non specificato.</translation>
    </message>
    <message>
        <source>Server and user credentials have been authenticated and policies have been applied.

Credentials and policies will be checked again during printing.
</source>
        <translation>Il server e le credenziali dell&apos;utente sono stati autenticati e i criteri sono stati applicati.

Le credenziali e i criteri verranno verificati di nuovo durante la stampa.
</translation>
    </message>
    <message>
        <source>You do not have permission to print.</source>
        <translation>Non si dispone dell&apos;autorizzazione per stampare.</translation>
    </message>
</context>
<context>
    <name>FinishingTab</name>
    <message>
        <source>Off</source>
        <translation>Disattivato</translation>
    </message>
    <message>
        <source>Offset jobs</source>
        <translation>Sfalsa lavori</translation>
    </message>
    <message>
        <source>Rotate copies</source>
        <translation>Ruota copie</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Attivato</translation>
    </message>
    <message>
        <source>Tri-Fold</source>
        <translation>Piega in tre</translation>
    </message>
    <message>
        <source>Bi-Fold</source>
        <translation>Piega in due</translation>
    </message>
    <message>
        <source>Staple:</source>
        <translation>Pinzatura:</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Perforazione</translation>
    </message>
    <message>
        <source>Print side</source>
        <translation>Lato di stampa</translation>
    </message>
    <message>
        <source>Direction of fold</source>
        <translation>Direzione di piega</translation>
    </message>
    <message>
        <source>Number of sheets</source>
        <translation>Numero di fogli</translation>
    </message>
    <message>
        <source>Staple location:</source>
        <translation>Posizione di pinzatura:</translation>
    </message>
    <message>
        <source>Staple method</source>
        <translation>Tipo di pinzatura</translation>
    </message>
    <message>
        <source>Punch Method:</source>
        <translation>Tipo di perforazione:</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Finitura</translation>
    </message>
    <message>
        <source>Separation</source>
        <translation>Separazione</translation>
    </message>
    <message>
        <source>Hole punch</source>
        <translation>Perforazione</translation>
    </message>
</context>
<context>
    <name>GeneralTab</name>
    <message>
        <source>Basic</source>
        <translation>Base</translation>
    </message>
    <message>
        <source>Media size</source>
        <translation>Formato supporto</translation>
    </message>
    <message>
        <source>Media type</source>
        <translation>Tipo di supporto</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Alimentazione</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destinazione</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Fascicolazione</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Disattivato</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Attivato</translation>
    </message>
    <message>
        <source>Duplex</source>
        <translation>Fronte-retro</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>Lato lungo</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>Lato corto</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Colore</translation>
    </message>
    <message>
        <source>Print size</source>
        <translation>Formato di stampa</translation>
    </message>
</context>
<context>
    <name>ImagingTab</name>
    <message>
        <source>Trapping</source>
        <translation>Sovrapposizione colori</translation>
    </message>
    <message>
        <source>Gloss mode</source>
        <translation>Modalità lucida</translation>
    </message>
    <message>
        <source>CIE optimization</source>
        <translation>Ottimizzazione CIE</translation>
    </message>
    <message>
        <source>Halftone screen</source>
        <translation>Retino mezzitoni</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Risoluzione</translation>
    </message>
    <message>
        <source>Color reproduction</source>
        <translation>Riproduzione colore</translation>
    </message>
    <message>
        <source>Color conversion</source>
        <translation>Conversione colore</translation>
    </message>
    <message>
        <source>VRS</source>
        <translation>VRS</translation>
    </message>
    <message>
        <source>Print grays with black toner</source>
        <translation>Stampa grigi con toner nero</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Disattivato</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Attivato</translation>
    </message>
    <message>
        <source>Imaging</source>
        <translation>Immagine</translation>
    </message>
    <message>
        <source>Print quality</source>
        <translation>Qualità di stampa</translation>
    </message>
    <message>
        <source>LeanPrint</source>
        <translation>LeanPrint</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Colore</translation>
    </message>
    <message>
        <source>Adjustment</source>
        <translation>Regolazione</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Impostazioni...</translation>
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
        <translation>L&apos;ID conto deve essere composto da 1 a 8 cifre</translation>
    </message>
    <message>
        <source>Private print</source>
        <translation>Stampa riservata</translation>
    </message>
    <message>
        <source>Custom box</source>
        <translation>Casella personalizzata</translation>
    </message>
    <message>
        <source>Value cannot contain the double quote (&quot;) character.</source>
        <translation>Il valore non può contenere virgolette doppie (&quot;).</translation>
    </message>
    <message>
        <source>Job accounting</source>
        <translation>Contabilità lavori</translation>
    </message>
    <message>
        <source>Job accounting</source>
        <comment>caption</comment>
        <extracomment>Short, since it stands below a small picture.</extracomment>
        <translation>Contabilità lavori</translation>
    </message>
    <message>
        <source>Select account ID</source>
        <translation>Seleziona ID conto</translation>
    </message>
    <message>
        <source>Account ID List</source>
        <translation>Elenco ID conto</translation>
    </message>
    <message>
        <source>Use specific account ID</source>
        <translation>ID conto specifico</translation>
    </message>
    <message>
        <source>You must add an account ID to the list.</source>
        <translation>È necessario aggiungere un ID conto all&apos;elenco.</translation>
    </message>
    <message>
        <source>Job e-mail notification</source>
        <translation>Notifica e-mail</translation>
    </message>
    <message>
        <source>Job e-mail notification</source>
        <comment>caption</comment>
        <extracomment>Short, since it stands below a small picture.</extracomment>
        <translation>Notifica e-mail</translation>
    </message>
    <message>
        <source>Enter a valid e-mail address.</source>
        <translation>Immettere un indirizzo e-mail valido.</translation>
    </message>
    <message>
        <source>Enter the e-mail address in a valid format.
For example: %1</source>
        <translation>Immettere l&apos;indirizzo e-mail in un formato valido.
Ad esempio: %1</translation>
    </message>
    <message>
        <source>E-mail address cannot contain any spaces.</source>
        <translation>L&apos;indirizzo e-mail non può contenere spazi.</translation>
    </message>
    <message>
        <source>E-mail address should use only ASCII characters.</source>
        <translation>L&apos;indirizzo e-mail deve contenere solo caratteri ASCII.</translation>
    </message>
    <message>
        <source>User Login</source>
        <translation>Accesso utente</translation>
    </message>
    <message>
        <source>User login</source>
        <extracomment>Short, since it stands below a small picture.</extracomment>
        <translation>Accesso utente</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nome:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>User name must be at least one character long.</source>
        <translation>Il nome utente deve contenere almeno un carattere.</translation>
    </message>
    <message>
        <source>Job name</source>
        <translation>Nome lavoro</translation>
    </message>
    <message>
        <source>Overwrite job name:</source>
        <translation>Sovrascrivi nome lavoro:</translation>
    </message>
    <message>
        <source>Application defined</source>
        <translation>Definito dall&apos;applicazione</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizzato</translation>
    </message>
    <message>
        <source>Use job name + date and time</source>
        <translation>Nome + data e ora</translation>
    </message>
    <message>
        <source>Replace existing file</source>
        <translation>Sostituisci file esistente</translation>
    </message>
    <message>
        <source>The custom job name field requires a name within a 64 character limit.</source>
        <translation>Il nome lavoro personalizzato deve contenere da 1 a 64 caratteri.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nessuno</translation>
    </message>
    <message>
        <source>Job settings</source>
        <translation>Impostazioni lavoro</translation>
    </message>
    <message>
        <source>Job storage:</source>
        <extracomment>Short, since it stands below a small picture.</extracomment>
        <translation>Memoria:</translation>
    </message>
    <message>
        <source>Access code</source>
        <translation>Codice di accesso</translation>
    </message>
    <message>
        <source>Box number</source>
        <translation>Numero casella</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Job storage</source>
        <translation>Memorizzazione lavori</translation>
    </message>
    <message>
        <source>Proof and hold</source>
        <translation>Prova e trattieni</translation>
    </message>
    <message>
        <source>Access code must be 4 numbers in length.</source>
        <translation>Il codice di accesso deve essere di 4 cifre.</translation>
    </message>
    <message>
        <source>Enter a custom box number between 1 and 1000.</source>
        <translation>Immettere un numero di casella compreso tra 1 e 1000.</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Lavoro</translation>
    </message>
    <message>
        <source>This Account ID already exists.</source>
        <translation>Questo ID conto esiste già.</translation>
    </message>
    <message>
        <source>Account ID Error</source>
        <translation>Errore ID conto</translation>
    </message>
    <message>
        <source>Custom job name</source>
        <translation>Nome lavoro personalizzato</translation>
    </message>
</context>
<context>
    <name>LicenseDialog</name>
    <message>
        <source>Legal Notices</source>
        <translation>Note legali</translation>
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
        <translation>%1 e un altro</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 e altri %2</translation>
    </message>
</context>
<context>
    <name>OptionLabels</name>
    <message>
        <source>On</source>
        <translation>Attivato</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Disattivato</translation>
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
        <translation>Disattivato</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Attivato</translation>
    </message>
</context>
<context>
    <name>PasswordPrompt</name>
    <message>
        <source>Password Prompt</source>
        <translation>Richiesta password</translation>
    </message>
    <message>
        <source>Please enter the root password.</source>
        <translation>Immettere la password di root.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <source>Could not authorize.</source>
        <translation>Autorizzazione non riuscita.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be handed to the program that changes the printer: only letters, digits and %2 can.</source>
        <translation>&quot;%1&quot; non può essere passato al programma che modifica la stampante: sono ammessi solo lettere, cifre e %2.</translation>
    </message>
    <message>
        <source>The program %1 is missing. An administrator has to install it in a folder of root&apos;s search path, such as /usr/sbin.</source>
        <translation>Manca il programma %1. Un amministratore deve installarlo in una cartella del percorso di ricerca di root, ad esempio /usr/sbin.</translation>
    </message>
    <message>
        <source>sudo wants your own password.</source>
        <translation>sudo richiede la propria password.</translation>
    </message>
    <message>
        <source>su wants the administrator&apos;s password (root).</source>
        <translation>su richiede la password dell&apos;amministratore (root).</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Metodo</translation>
    </message>
</context>
<context>
    <name>PrinterStatus</name>
    <message>
        <source>Idle</source>
        <translation>Inattiva</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>In pausa</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>In stampa</translation>
    </message>
    <message>
        <source>Error: Printer does not exist or lpstat failed.</source>
        <translation>Errore: la stampante non esiste o lpstat non è riuscito.</translation>
    </message>
</context>
<context>
    <name>PrinterTab</name>
    <message>
        <source>Printer</source>
        <translation>Stampante</translation>
    </message>
    <message>
        <source>Installed options</source>
        <translation>Opzioni installate</translation>
    </message>
    <message>
        <source>Root access is required to make changes to installable options</source>
        <translation>Per modificare le opzioni installabili serve l&apos;accesso root</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Stampanti</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destinazione</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Select a printer.</source>
        <translation>Selezionare una stampante.</translation>
    </message>
    <message>
        <source>Asking...</source>
        <translation>Richiesta in corso...</translation>
    </message>
    <message>
        <source>The print system (CUPS) does not answer, so no printer can be listed.</source>
        <translation>Il sistema di stampa (CUPS) non risponde: nessuna stampante può essere elencata.</translation>
    </message>
    <message>
        <source>There is no Brixola printer yet. A print queue counts as one if it uses the PPD of a Brixola or NV-RATEX printer; a driverless one does not. Add the printer with that PPD in the print settings of your system or with lpadmin.</source>
        <translation>Non c&apos;è ancora nessuna stampante Brixola. È riconosciuta come tale una coda di stampa che usa il PPD di una stampante Brixola o NV-RATEX; una coda senza driver non lo è. Aggiungere la stampante con quel PPD nelle impostazioni di stampa del sistema o con lpadmin.</translation>
    </message>
    <message>
        <source>Look again</source>
        <translation>Cerca di nuovo</translation>
    </message>
</context>
<context>
    <name>ProfileDialog</name>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Modifica...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profili</translation>
    </message>
    <message>
        <source>Save Profiles</source>
        <translation>Salva profili</translation>
    </message>
    <message>
        <source>Edit Profile</source>
        <translation>Modifica profilo</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Dettaglio</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Voce</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Select profile:</source>
        <translation>Selezionare un profilo:</translation>
    </message>
    <message>
        <source>Factory Default</source>
        <translation>Impostazioni fabbrica</translation>
    </message>
    <message>
        <source>Resolve the marked conflicts first.</source>
        <translation>Risolvere prima i conflitti contrassegnati.</translation>
    </message>
    <message>
        <source>Select a profile of your own first.</source>
        <translation>Selezionare prima un proprio profilo.</translation>
    </message>
    <message>
        <source>The profile does not say which printer these values are of.</source>
        <translation>Il profilo non indica a quale stampante appartengono questi valori.</translation>
    </message>
    <message>
        <source>There is no PPD of %1 here to name these values. An administrator can add it with brixola-press-desk-ppds.</source>
        <translation>Qui non c’è un PPD di %1 che dia un nome a questi valori. Un amministratore può aggiungerlo con brixola-press-desk-ppds.</translation>
    </message>
</context>
<context>
    <name>ProfileEditDialog</name>
    <message>
        <source>Description:</source>
        <translation>Descrizione:</translation>
    </message>
    <message>
        <source>Edit Profile</source>
        <translation>Modifica profilo</translation>
    </message>
</context>
<context>
    <name>ProfileFormDialog</name>
    <message>
        <source>Name:</source>
        <translation>Nome:</translation>
    </message>
    <message>
        <source>Enter a name first.</source>
        <translation>Immettere prima un nome.</translation>
    </message>
    <message>
        <source>This name is reserved.</source>
        <translation>Questo nome è riservato.</translation>
    </message>
    <message>
        <source>A name can&apos;t begin with a dot, nor contain / &quot; ` or ;</source>
        <translation>Un nome non può iniziare con un punto né contenere / &quot; ` o ;</translation>
    </message>
    <message>
        <source>The name or the description is too long.</source>
        <translation>Il nome o la descrizione è troppo lungo.</translation>
    </message>
    <message>
        <source>The profile could not be saved.</source>
        <translation>Impossibile salvare il profilo.</translation>
    </message>
</context>
<context>
    <name>ProfileReader</name>
    <message>
        <source>Profiles</source>
        <translation>Profili</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descrizione</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>Base</translation>
    </message>
    <message>
        <source>Print size</source>
        <translation>Formato di stampa</translation>
    </message>
    <message>
        <source>Media type</source>
        <translation>Tipo di supporto</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Alimentazione</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destinazione</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Fascicolazione</translation>
    </message>
    <message>
        <source>Duplex</source>
        <translation>Fronte-retro</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Opuscolo</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Finitura</translation>
    </message>
    <message>
        <source>Separation</source>
        <translation>Separazione</translation>
    </message>
    <message>
        <source>Folding mode</source>
        <translation>Modalità di piega</translation>
    </message>
    <message>
        <source>Folding side</source>
        <translation>Lato di piega</translation>
    </message>
    <message>
        <source>Folding direction</source>
        <translation>Direzione di piega</translation>
    </message>
    <message>
        <source>Folding method</source>
        <translation>Metodo di piega</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Pinzatura</translation>
    </message>
    <message>
        <source>Staple method</source>
        <translation>Tipo di pinzatura</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Perforazione</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Rotazione</translation>
    </message>
    <message>
        <source>Imaging</source>
        <translation>Immagine</translation>
    </message>
    <message>
        <source>Trapping</source>
        <translation>Sovrapposizione colori</translation>
    </message>
    <message>
        <source>Gloss mode</source>
        <translation>Modalità lucida</translation>
    </message>
    <message>
        <source>CIE optimization</source>
        <translation>Ottimizzazione CIE</translation>
    </message>
    <message>
        <source>Halftone screen</source>
        <translation>Retino mezzitoni</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Risoluzione</translation>
    </message>
    <message>
        <source>LeanPrint</source>
        <translation>LeanPrint</translation>
    </message>
    <message>
        <source>HSL/Color Balance</source>
        <translation>HSL/Bilanciamento colore</translation>
    </message>
    <message>
        <source>Color adjustment</source>
        <translation>Regolazione colore</translation>
    </message>
    <message>
        <source>Monochrome adjustment</source>
        <translation>Regolazione monocromia</translation>
    </message>
    <message>
        <source>Color mode</source>
        <translation>Modalità colore</translation>
    </message>
    <message>
        <source>Color reproduction</source>
        <translation>Riproduzione colore</translation>
    </message>
    <message>
        <source>Color conversion</source>
        <translation>Conversione colore</translation>
    </message>
    <message>
        <source>VRS</source>
        <translation>VRS</translation>
    </message>
    <message>
        <source>Print grays with black toner</source>
        <translation>Grigi con toner nero</translation>
    </message>
    <message>
        <source>Publishing</source>
        <translation>Pubblicazione</translation>
    </message>
    <message>
        <source>Cover mode</source>
        <translation>Modalità copertina</translation>
    </message>
    <message>
        <source>Page insert</source>
        <translation>Inserimento pagine</translation>
    </message>
    <message>
        <source>Transparency interleaving</source>
        <translation>Interfogli lucidi</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Lavoro</translation>
    </message>
    <message>
        <source>Job settings</source>
        <translation>Impostazioni lavoro</translation>
    </message>
    <message>
        <source>Job accounting</source>
        <translation>Contabilità lavori</translation>
    </message>
    <message>
        <source>Job name</source>
        <translation>Nome lavoro</translation>
    </message>
    <message>
        <source>Job e-mail notification</source>
        <translation>Notifica e-mail</translation>
    </message>
    <message>
        <source>User login</source>
        <translation>Accesso utente</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Filigrana</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Attivato</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Disattivato</translation>
    </message>
    <message>
        <source>Private print</source>
        <translation>Stampa riservata</translation>
    </message>
    <message>
        <source>Custom box</source>
        <translation>Casella personalizzata</translation>
    </message>
    <message>
        <source>Custom watermark</source>
        <translation>Filigrana personalizzata</translation>
    </message>
    <message>
        <source>Black &amp; white</source>
        <translation>Bianco e nero</translation>
    </message>
</context>
<context>
    <name>ProfileSaveDialog</name>
    <message>
        <source>Description</source>
        <translation>Descrizione</translation>
    </message>
    <message>
        <source>Save Profile</source>
        <translation>Salva profilo</translation>
    </message>
    <message>
        <source>The profile could not be added. A maximum profile count of 25 has been reached.</source>
        <translation>Impossibile aggiungere il profilo. È stato raggiunto il numero massimo di 25 profili.</translation>
    </message>
    <message>
        <source>Select a printer.</source>
        <translation>Selezionare una stampante.</translation>
    </message>
    <message>
        <source>This name is reserved</source>
        <translation>Questo nome è riservato</translation>
    </message>
    <message>
        <source>You must enter a profile name</source>
        <translation>È necessario immettere un nome di profilo</translation>
    </message>
</context>
<context>
    <name>PublishingTab</name>
    <message>
        <source>Cover mode:</source>
        <translation>Modalità copertina:</translation>
    </message>
    <message>
        <source>Cover mode:</source>
        <comment>caption</comment>
        <translation>Copertina:</translation>
    </message>
    <message>
        <source>Media for cover:</source>
        <translation>Supporto per copertina:</translation>
    </message>
    <message>
        <source>Page insert:</source>
        <translation>Inserimento pagine:</translation>
    </message>
    <message>
        <source>Page insert:</source>
        <comment>caption</comment>
        <translation>Inserti:</translation>
    </message>
    <message>
        <source>Media for page:</source>
        <translation>Supporto per inserto:</translation>
    </message>
    <message>
        <source>Transparency interleaving:</source>
        <translation>Interfogli per lucidi:</translation>
    </message>
    <message>
        <source>Transparency interleaving:</source>
        <comment>caption</comment>
        <translation>Interfogli:</translation>
    </message>
    <message>
        <source>Media for backing:</source>
        <translation>Supporto per interfoglio:</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>Fronte</translation>
    </message>
    <message>
        <source>Front and back</source>
        <translation>Fronte e retro</translation>
    </message>
    <message>
        <source>Outside</source>
        <translation>Esterno</translation>
    </message>
    <message>
        <source>Inside</source>
        <translation>Interno</translation>
    </message>
    <message>
        <source>Print onto front</source>
        <translation>Stampa sul fronte</translation>
    </message>
    <message>
        <source>Print onto back</source>
        <translation>Stampa sul retro</translation>
    </message>
    <message>
        <source>Print onto backing</source>
        <translation>Stampa sull&apos;interfoglio</translation>
    </message>
    <message>
        <source>Print onto:</source>
        <translation>Stampa su:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retro</translation>
    </message>
    <message>
        <source>Insert before pages:</source>
        <translation>Inserisci prima delle pagine:</translation>
    </message>
    <message>
        <source>Generic error message</source>
        <translation>Messaggio di errore generico</translation>
    </message>
    <message>
        <source>Please type a page range.</source>
        <translation>Digitare un intervallo di pagine.</translation>
    </message>
    <message>
        <source>Please enter your specified pages.</source>
        <translation>Inserire le pagine desiderate.</translation>
    </message>
    <message>
        <source>You can only insert up to 50 pages.</source>
        <translation>È possibile inserire al massimo 50 pagine.</translation>
    </message>
    <message>
        <source>You can only enter page numbers between 3 and 511</source>
        <translation>È possibile inserire solo numeri di pagina tra 3 e 511</translation>
    </message>
    <message>
        <source>You can only enter page numbers between 2 and 511</source>
        <translation>È possibile inserire solo numeri di pagina tra 2 e 511</translation>
    </message>
    <message>
        <source>Publishing</source>
        <translation>Pubblicazione</translation>
    </message>
</context>
<context>
    <name>QDialogButtonBox</name>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annulla</translation>
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
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Chiudi</translation>
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
        <translation>Applica</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>%1 and %2</source>
        <translation>%1 e %2</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 o %2</translation>
    </message>
    <message>
        <source>Always on with %1</source>
        <translation>Sempre attivo con %1</translation>
    </message>
    <message>
        <source>Always on without %1</source>
        <translation>Sempre attivo senza %1</translation>
    </message>
    <message>
        <source>Always on with %1 without %2</source>
        <translation>Sempre attivo con %1 senza %2</translation>
    </message>
    <message>
        <source>Not with %1</source>
        <translation>Non con %1</translation>
    </message>
    <message>
        <source>Not installed: %1 (see Printer)</source>
        <translation>Non installato: %1 (vedere Stampante)</translation>
    </message>
    <message>
        <source>Only with %1</source>
        <translation>Solo con %1</translation>
    </message>
    <message>
        <source>Not with %1 without %2</source>
        <translation>Non con %1 senza %2</translation>
    </message>
    <message>
        <source>Decided by the policy server</source>
        <translation>Deciso dal server dei criteri</translation>
    </message>
    <message>
        <source>Only %1 is left.</source>
        <translation>Resta solo &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>This printer does not offer it.</source>
        <translation>Questa stampante non lo offre.</translation>
    </message>
    <message>
        <source>This printer offers nothing else.</source>
        <translation>Questa stampante non offre altro.</translation>
    </message>
    <message>
        <source>Switch on %1 first.</source>
        <translation>Attivare prima &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Choose %1 first.</source>
        <translation>Scegliere prima &quot;%1&quot;.</translation>
    </message>
</context>
<context>
    <name>SheetView</name>
    <message>
        <source>Click to change: %1</source>
        <translation>Fare clic per modificare: %1</translation>
    </message>
</context>
<context>
    <name>Spoken</name>
    <message>
        <source>In conflict with other settings</source>
        <translation>In conflitto con altre impostazioni</translation>
    </message>
</context>
<context>
    <name>TelemetryDialog</name>
    <message>
        <source>Data Collection</source>
        <translation>Raccolta dati</translation>
    </message>
    <message>
        <source>We ask you to help improve our application and/or products by providing usage information.</source>
        <translation>La preghiamo di aiutarci a migliorare la nostra applicazione e/o i nostri prodotti fornendo informazioni sull&apos;uso.</translation>
    </message>
    <message>
        <source>The application DOES NOT collect any personal data.</source>
        <translation>L&apos;applicazione NON raccoglie alcun dato personale.</translation>
    </message>
    <message>
        <source>Regarding data collection, please read the PRIVACY POLICY as follows.</source>
        <translation>Per quanto riguarda la raccolta dati, legga l&apos;INFORMATIVA SULLA PRIVACY che segue.</translation>
    </message>
    <message>
        <source>Yes, I want to help improve your products</source>
        <translation>Sì, desidero contribuire a migliorare i vostri prodotti</translation>
    </message>
    <message>
        <source>No, I do not wish to take part in this feature</source>
        <translation>No, non desidero partecipare a questa funzione</translation>
    </message>
</context>
<context>
    <name>UserLoginTab</name>
    <message>
        <source>User Login</source>
        <translation>Accesso utente</translation>
    </message>
    <message>
        <source>User login</source>
        <translation>Accesso utente</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Value cannot contain the double quote (&quot;) character.</source>
        <translation>Il valore non può contenere virgolette doppie (&quot;).</translation>
    </message>
    <message>
        <source>User name must be at least one character long.</source>
        <translation>Il nome utente deve contenere almeno un carattere.</translation>
    </message>
</context>
<context>
    <name>WatermarkTab</name>
    <message>
        <source>Font</source>
        <translation>Carattere</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Colore</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angolo</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stile</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Riempimento</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Filigrana</translation>
    </message>
    <message>
        <source>Watermark/Stamp</source>
        <translation>Filigrana/Timbro</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Testo</translation>
    </message>
    <message>
        <source>Repeat watermark</source>
        <translation>Ripeti filigrana</translation>
    </message>
    <message>
        <source>Super watermark</source>
        <translation>Super filigrana</translation>
    </message>
    <message>
        <source>Custom watermark</source>
        <translation>Filigrana personalizzata</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuovo</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Disattivato</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizzato</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Nero</translation>
    </message>
    <message>
        <source>Enter a text first.</source>
        <translation>Immettere prima un testo.</translation>
    </message>
    <message>
        <source>This text is in the list already.</source>
        <translation>Questo testo è già nell&apos;elenco.</translation>
    </message>
    <message>
        <source>Choose a text of your own first.</source>
        <translation>Scegliere prima un proprio testo.</translation>
    </message>
    <message>
        <source>There is no such text of your own.</source>
        <translation>Questo testo non è tra i propri.</translation>
    </message>
    <message>
        <source>Watermark</source>
        <comment>caption</comment>
        <extracomment>Short, since it stands below a small picture. A hyphen may break the line.</extracomment>
        <translation>Filigrana</translation>
    </message>
    <message>
        <source>Super watermark</source>
        <comment>caption</comment>
        <extracomment>Short, since it stands below a small picture. A hyphen may break the line.</extracomment>
        <translation>Super filigrana</translation>
    </message>
</context>
<context>
    <name>adjustmentDialog</name>
    <message>
        <source>Master</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rosso</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Giallo</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Ciano</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blu</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturazione</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Luminosità</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contrasto</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizzato</translation>
    </message>
    <message>
        <source>HSL(hue, saturation and lightness)</source>
        <translation>HSL (tonalità, saturazione e luminosità)</translation>
    </message>
    <message>
        <source>Color balance</source>
        <translation>Bilanciamento colore</translation>
    </message>
    <message>
        <source>Hue Adjustment</source>
        <translation>Regolazione tonalità</translation>
    </message>
    <message>
        <source>Color levels</source>
        <translation>Livelli di colore</translation>
    </message>
    <message>
        <source>Adjustment Settings</source>
        <translation>Impostazioni di regolazione</translation>
    </message>
    <message>
        <source>Modify</source>
        <translation>Modifica</translation>
    </message>
</context>
<context>
    <name>monoDialog</name>
    <message>
        <source>Custom</source>
        <translation>Personalizzato</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosità</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contrasto</translation>
    </message>
    <message>
        <source>Adjustment Settings</source>
        <translation>Impostazioni di regolazione</translation>
    </message>
</context>
</TS>
