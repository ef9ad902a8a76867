<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>À propos</translation>
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
        <translation>Collecte de données</translation>
    </message>
    <message>
        <source>Legal notices</source>
        <translation>Mentions légales</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>AccountEditDialog</name>
    <message>
        <source>Account ID:</source>
        <translation>ID de compte:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Description:</translation>
    </message>
    <message>
        <source>New Account ID</source>
        <translation>Nouvel ID de compte</translation>
    </message>
    <message>
        <source>Edit Account ID</source>
        <translation>Modifier l&apos;ID de compte</translation>
    </message>
</context>
<context>
    <name>AccountListDialog</name>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Account ID</source>
        <translation>ID de compte</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Select an account first.</source>
        <translation>Sélectionnez d&apos;abord un compte.</translation>
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
        <translation>Veuillez ne pas exécuter %1 en tant que root.</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Enregistrer sous...</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profils</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>It looks like your installed printers have changed.
Reloading list now.</source>
        <translation>Vos imprimantes installées semblent avoir changé.
La liste va être rechargée.</translation>
    </message>
    <message>
        <source>Select a printer.</source>
        <translation>Sélectionnez une imprimante.</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Succès</translation>
    </message>
    <message>
        <source>Settings applied.</source>
        <translation>Paramètres appliqués.</translation>
    </message>
    <message>
        <source>Error: Printer does not exist or lpoptions failed.</source>
        <translation>Erreur : l&apos;imprimante n&apos;existe pas ou lpoptions a échoué.</translation>
    </message>
    <message>
        <source>The folder %1 is a link, or it belongs to somebody else (%2). Your settings are neither read from it nor saved in it. Ask an administrator to remove it or to make you its owner.</source>
        <translation>Le dossier %1 est un lien ou appartient à quelqu’un d’autre (%2). Vos paramètres n’y sont ni lus ni enregistrés. Demandez à un administrateur de le supprimer ou de vous en rendre propriétaire.</translation>
    </message>
    <message>
        <source>See %1</source>
        <comment>pages with marks</comment>
        <translation>Voir %1</translation>
    </message>
    <message>
        <source>The PPD of %1 can&apos;t be read.</source>
        <translation>Le PPD de %1 est illisible.</translation>
    </message>
    <message>
        <source>Applying...</source>
        <translation>Application en cours...</translation>
    </message>
    <message>
        <source>Print server does not answer.</source>
        <translation>Le serveur d&apos;impression ne répond pas.</translation>
    </message>
    <message>
        <source>The settings could not be saved in %1.</source>
        <translation>Les paramètres n’ont pas pu être enregistrés dans %1.</translation>
    </message>
    <message>
        <source>The print system may use them all the same.</source>
        <translation>Le système d’impression les utilise peut-être malgré tout.</translation>
    </message>
</context>
<context>
    <name>BixTabWidget</name>
    <message>
        <source>Something has changed here.</source>
        <translation>Quelque chose a changé ici.</translation>
    </message>
</context>
<context>
    <name>BookletTab</name>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Left edge binding</source>
        <translation>Reliure à gauche</translation>
    </message>
    <message>
        <source>Right edge binding</source>
        <translation>Reliure à droite</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Mise en page</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Livret</translation>
    </message>
    <message>
        <source>Booklet fold</source>
        <translation>Pliage en livret</translation>
    </message>
</context>
<context>
    <name>ChangeReport</name>
    <message>
        <source>The policy server</source>
        <translation>Le serveur de règles</translation>
    </message>
    <message>
        <source>Switched off: %1.</source>
        <translation>Désactivé : %1.</translation>
    </message>
    <message>
        <source>Changed: %1.</source>
        <translation>Modifié : %1.</translation>
    </message>
    <message>
        <source>%1 switched off: %2.</source>
        <translation>%1 a désactivé : %2.</translation>
    </message>
    <message>
        <source>%1 changed: %2.</source>
        <translation>%1 a modifié : %2.</translation>
    </message>
    <message>
        <source>%1 was switched off by %2.</source>
        <translation>Désactivé par %2 : %1.</translation>
    </message>
    <message>
        <source>%1 were switched off by %2.</source>
        <translation>Désactivés par %2 : %1.</translation>
    </message>
    <message>
        <source>Changed by %2: %1.</source>
        <translation>Modifié par %2 : %1.</translation>
    </message>
    <message>
        <source>Switch on again</source>
        <translation>Réactiver</translation>
    </message>
    <message>
        <source>Change back</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Adjusted to this printer: %1.</source>
        <translation>Adapté à cette imprimante : %1.</translation>
    </message>
</context>
<context>
    <name>ColorGroup</name>
    <message>
        <source>Full color</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>Black &amp; white</source>
        <translation>Noir et blanc</translation>
    </message>
</context>
<context>
    <name>FKPTab</name>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Serveur</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Login user name</source>
        <translation>Nom de connexion</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>No notifications for policy conflicts</source>
        <translation>Aucune notification en cas de conflit avec une règle</translation>
    </message>
    <message>
        <source>Continue printing</source>
        <translation>Continuer l&apos;impression</translation>
    </message>
    <message>
        <source>Cancel printing</source>
        <translation>Annuler l&apos;impression</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Vérifier</translation>
    </message>
    <message>
        <source>Unable to connect to the server.</source>
        <translation>Impossible de se connecter au serveur.</translation>
    </message>
    <message>
        <source>Server, Port, and Login user information must be filled out.</source>
        <translation>Le serveur, le port et les informations de connexion doivent être renseignés.</translation>
    </message>
    <message>
        <source>You must click Verify after making changes.</source>
        <translation>Vous devez cliquer sur Vérifier après toute modification.</translation>
    </message>
    <message>
        <source>Login failed. The user name or password you entered is incorrect.</source>
        <translation>Échec de la connexion. Le nom d&apos;utilisateur ou le mot de passe saisi est incorrect.</translation>
    </message>
    <message>
        <source>An unspecified error occured.</source>
        <translation>Une erreur indéterminée s&apos;est produite.</translation>
    </message>
    <message>
        <source>Server and user credentials have been authenticated and policies have been applied.

Credentials and policies will be checked again during printing.
</source>
        <translation>Le serveur et les informations de connexion ont été authentifiés et les règles ont été appliquées.

Les informations de connexion et les règles seront de nouveau vérifiées lors de l&apos;impression.
</translation>
    </message>
    <message>
        <source>You do not have permission to print.</source>
        <translation>Vous n&apos;êtes pas autorisé à imprimer.</translation>
    </message>
</context>
<context>
    <name>FinishingTab</name>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Offset jobs</source>
        <translation>Décaler les travaux</translation>
    </message>
    <message>
        <source>Rotate copies</source>
        <translation>Pivoter les copies</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Tri-Fold</source>
        <translation>Pli en trois</translation>
    </message>
    <message>
        <source>Bi-Fold</source>
        <translation>Pli en deux</translation>
    </message>
    <message>
        <source>Staple:</source>
        <translation>Agrafage:</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Perforation</translation>
    </message>
    <message>
        <source>Print side</source>
        <translation>Côté imprimé</translation>
    </message>
    <message>
        <source>Direction of fold</source>
        <translation>Sens du pli</translation>
    </message>
    <message>
        <source>Number of sheets</source>
        <translation>Nombre de feuilles</translation>
    </message>
    <message>
        <source>Staple location:</source>
        <translation>Position d&apos;agrafage:</translation>
    </message>
    <message>
        <source>Staple method</source>
        <translation>Type d&apos;agrafage</translation>
    </message>
    <message>
        <source>Punch Method:</source>
        <translation>Type de perforation:</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Finition</translation>
    </message>
    <message>
        <source>Separation</source>
        <translation>Séparation</translation>
    </message>
    <message>
        <source>Hole punch</source>
        <translation>Perforation</translation>
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
        <translation>Format du support</translation>
    </message>
    <message>
        <source>Media type</source>
        <translation>Type de support</translation>
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
        <translation>Assemblage</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Duplex</source>
        <translation>Recto verso</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>Bord long</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>Bord court</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Print size</source>
        <translation>Format d&apos;impression</translation>
    </message>
</context>
<context>
    <name>ImagingTab</name>
    <message>
        <source>Trapping</source>
        <translation>Recouvrement</translation>
    </message>
    <message>
        <source>Gloss mode</source>
        <translation>Mode brillant</translation>
    </message>
    <message>
        <source>CIE optimization</source>
        <translation>Optimisation CIE</translation>
    </message>
    <message>
        <source>Halftone screen</source>
        <translation>Trame de demi-teintes</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>Color reproduction</source>
        <translation>Reproduction des couleurs</translation>
    </message>
    <message>
        <source>Color conversion</source>
        <translation>Conversion des couleurs</translation>
    </message>
    <message>
        <source>VRS</source>
        <translation>VRS</translation>
    </message>
    <message>
        <source>Print grays with black toner</source>
        <translation>Imprimer les gris avec le toner noir</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Imaging</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Print quality</source>
        <translation>Qualité d&apos;impression</translation>
    </message>
    <message>
        <source>LeanPrint</source>
        <translation>LeanPrint</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Adjustment</source>
        <translation>Réglage</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Paramètres...</translation>
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
        <translation>L&apos;ID de compte doit comporter de 1 à 8 chiffres</translation>
    </message>
    <message>
        <source>Private print</source>
        <translation>Impression privée</translation>
    </message>
    <message>
        <source>Custom box</source>
        <translation>Boîte personnalisée</translation>
    </message>
    <message>
        <source>Value cannot contain the double quote (&quot;) character.</source>
        <translation>La valeur ne peut pas contenir de guillemet double (&quot;).</translation>
    </message>
    <message>
        <source>Job accounting</source>
        <translation>Comptabilisation des travaux</translation>
    </message>
    <message>
        <source>Job accounting</source>
        <comment>caption</comment>
        <extracomment>Short, since it stands below a small picture.</extracomment>
        <translation>Comptes</translation>
    </message>
    <message>
        <source>Select account ID</source>
        <translation>Choisir un ID de compte</translation>
    </message>
    <message>
        <source>Account ID List</source>
        <translation>Liste des ID de compte</translation>
    </message>
    <message>
        <source>Use specific account ID</source>
        <translation>ID de compte précis</translation>
    </message>
    <message>
        <source>You must add an account ID to the list.</source>
        <translation>Vous devez ajouter un ID de compte à la liste.</translation>
    </message>
    <message>
        <source>Job e-mail notification</source>
        <translation>Notification par e-mail</translation>
    </message>
    <message>
        <source>Job e-mail notification</source>
        <comment>caption</comment>
        <extracomment>Short, since it stands below a small picture.</extracomment>
        <translation>Notification par e-mail</translation>
    </message>
    <message>
        <source>Enter a valid e-mail address.</source>
        <translation>Saisissez une adresse e-mail valide.</translation>
    </message>
    <message>
        <source>Enter the e-mail address in a valid format.
For example: %1</source>
        <translation>Saisissez l&apos;adresse e-mail dans un format valide.
Par exemple : %1</translation>
    </message>
    <message>
        <source>E-mail address cannot contain any spaces.</source>
        <translation>L&apos;adresse e-mail ne peut pas contenir d&apos;espaces.</translation>
    </message>
    <message>
        <source>E-mail address should use only ASCII characters.</source>
        <translation>L&apos;adresse e-mail ne doit contenir que des caractères ASCII.</translation>
    </message>
    <message>
        <source>User Login</source>
        <translation>Connexion utilisateur</translation>
    </message>
    <message>
        <source>User login</source>
        <extracomment>Short, since it stands below a small picture.</extracomment>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nom:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Mot de passe:</translation>
    </message>
    <message>
        <source>User name must be at least one character long.</source>
        <translation>Le nom d&apos;utilisateur doit comporter au moins un caractère.</translation>
    </message>
    <message>
        <source>Job name</source>
        <translation>Nom du travail</translation>
    </message>
    <message>
        <source>Overwrite job name:</source>
        <translation>Remplacer le nom du travail:</translation>
    </message>
    <message>
        <source>Application defined</source>
        <translation>Défini par l&apos;application</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personnalisé</translation>
    </message>
    <message>
        <source>Use job name + date and time</source>
        <translation>Nom + date et heure</translation>
    </message>
    <message>
        <source>Replace existing file</source>
        <translation>Remplacer le fichier</translation>
    </message>
    <message>
        <source>The custom job name field requires a name within a 64 character limit.</source>
        <translation>Le nom de travail personnalisé doit comporter de 1 à 64 caractères.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Job settings</source>
        <translation>Paramètres du travail</translation>
    </message>
    <message>
        <source>Job storage:</source>
        <extracomment>Short, since it stands below a small picture.</extracomment>
        <translation>Stockage:</translation>
    </message>
    <message>
        <source>Access code</source>
        <translation>Code d&apos;accès</translation>
    </message>
    <message>
        <source>Box number</source>
        <translation>Numéro de boîte</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Job storage</source>
        <translation>Stockage des travaux</translation>
    </message>
    <message>
        <source>Proof and hold</source>
        <translation>Épreuve et attente</translation>
    </message>
    <message>
        <source>Access code must be 4 numbers in length.</source>
        <translation>Le code d&apos;accès doit comporter 4 chiffres.</translation>
    </message>
    <message>
        <source>Enter a custom box number between 1 and 1000.</source>
        <translation>Saisissez un numéro de boîte entre 1 et 1000.</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Travail</translation>
    </message>
    <message>
        <source>This Account ID already exists.</source>
        <translation>Cet ID de compte existe déjà.</translation>
    </message>
    <message>
        <source>Account ID Error</source>
        <translation>Erreur d&apos;ID de compte</translation>
    </message>
    <message>
        <source>Custom job name</source>
        <translation>Nom de travail personnalisé</translation>
    </message>
</context>
<context>
    <name>LicenseDialog</name>
    <message>
        <source>Legal Notices</source>
        <translation>Mentions légales</translation>
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
        <translation>%1 et un autre</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 et %2 autres</translation>
    </message>
</context>
<context>
    <name>OptionLabels</name>
    <message>
        <source>On</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>option and value</comment>
        <translation>%1 : %2</translation>
    </message>
</context>
<context>
    <name>OptionStore</name>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activé</translation>
    </message>
</context>
<context>
    <name>PasswordPrompt</name>
    <message>
        <source>Password Prompt</source>
        <translation>Demande de mot de passe</translation>
    </message>
    <message>
        <source>Please enter the root password.</source>
        <translation>Veuillez saisir le mot de passe root.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Could not authorize.</source>
        <translation>Échec de l&apos;autorisation.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be handed to the program that changes the printer: only letters, digits and %2 can.</source>
        <translation>« %1 » ne peut pas être transmis au programme qui modifie l’imprimante : seuls les lettres, les chiffres et %2 sont possibles.</translation>
    </message>
    <message>
        <source>The program %1 is missing. An administrator has to install it in a folder of root&apos;s search path, such as /usr/sbin.</source>
        <translation>Le programme %1 est introuvable. Un administrateur doit l’installer dans un dossier du chemin de recherche de root, par exemple /usr/sbin.</translation>
    </message>
    <message>
        <source>sudo wants your own password.</source>
        <translation>sudo demande votre propre mot de passe.</translation>
    </message>
    <message>
        <source>su wants the administrator&apos;s password (root).</source>
        <translation>su demande le mot de passe de l’administrateur (root).</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Méthode</translation>
    </message>
</context>
<context>
    <name>PrinterStatus</name>
    <message>
        <source>Idle</source>
        <translation>Inactive</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pause</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Impression</translation>
    </message>
    <message>
        <source>Error: Printer does not exist or lpstat failed.</source>
        <translation>Erreur : l&apos;imprimante n&apos;existe pas ou lpstat a échoué.</translation>
    </message>
</context>
<context>
    <name>PrinterTab</name>
    <message>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
    <message>
        <source>Installed options</source>
        <translation>Options installées</translation>
    </message>
    <message>
        <source>Root access is required to make changes to installable options</source>
        <translation>L&apos;accès root est requis pour modifier les options installables</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Imprimantes</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Select a printer.</source>
        <translation>Sélectionnez une imprimante.</translation>
    </message>
    <message>
        <source>Asking...</source>
        <translation>Interrogation...</translation>
    </message>
    <message>
        <source>The print system (CUPS) does not answer, so no printer can be listed.</source>
        <translation>Le système d’impression (CUPS) ne répond pas ; aucune imprimante ne peut être affichée.</translation>
    </message>
    <message>
        <source>There is no Brixola printer yet. A print queue counts as one if it uses the PPD of a Brixola or NV-RATEX printer; a driverless one does not. Add the printer with that PPD in the print settings of your system or with lpadmin.</source>
        <translation>Il n’y a pas encore d’imprimante Brixola. Est reconnue toute file d’impression qui utilise le PPD d’une imprimante Brixola ou NV-RATEX ; une file sans pilote ne l’est pas. Ajoutez l’imprimante avec ce PPD dans les paramètres d’impression du système ou avec lpadmin.</translation>
    </message>
    <message>
        <source>Look again</source>
        <translation>Rechercher à nouveau</translation>
    </message>
</context>
<context>
    <name>ProfileDialog</name>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Modifier...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profils</translation>
    </message>
    <message>
        <source>Save Profiles</source>
        <translation>Enregistrer les profils</translation>
    </message>
    <message>
        <source>Edit Profile</source>
        <translation>Modifier le profil</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Détail</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Élément</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Select profile:</source>
        <translation>Sélectionner un profil:</translation>
    </message>
    <message>
        <source>Factory Default</source>
        <translation>Paramètres du fabricant</translation>
    </message>
    <message>
        <source>Resolve the marked conflicts first.</source>
        <translation>Résolvez d&apos;abord les conflits signalés.</translation>
    </message>
    <message>
        <source>Select a profile of your own first.</source>
        <translation>Sélectionnez d&apos;abord un de vos profils.</translation>
    </message>
    <message>
        <source>The profile does not say which printer these values are of.</source>
        <translation>Le profil n’indique pas à quelle imprimante appartiennent ces valeurs.</translation>
    </message>
    <message>
        <source>There is no PPD of %1 here to name these values. An administrator can add it with brixola-press-desk-ppds.</source>
        <translation>Il n’y a pas ici de PPD de %1 pour nommer ces valeurs. Un administrateur peut l’ajouter avec brixola-press-desk-ppds.</translation>
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
        <translation>Modifier le profil</translation>
    </message>
</context>
<context>
    <name>ProfileFormDialog</name>
    <message>
        <source>Name:</source>
        <translation>Nom:</translation>
    </message>
    <message>
        <source>Enter a name first.</source>
        <translation>Saisissez d&apos;abord un nom.</translation>
    </message>
    <message>
        <source>This name is reserved.</source>
        <translation>Ce nom est réservé.</translation>
    </message>
    <message>
        <source>A name can&apos;t begin with a dot, nor contain / &quot; ` or ;</source>
        <translation>Un nom ne peut ni commencer par un point ni contenir / &quot; ` ou ;</translation>
    </message>
    <message>
        <source>The name or the description is too long.</source>
        <translation>Le nom ou la description est trop long.</translation>
    </message>
    <message>
        <source>The profile could not be saved.</source>
        <translation>Le profil n’a pas pu être enregistré.</translation>
    </message>
</context>
<context>
    <name>ProfileReader</name>
    <message>
        <source>Profiles</source>
        <translation>Profils</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>Base</translation>
    </message>
    <message>
        <source>Print size</source>
        <translation>Format d&apos;impression</translation>
    </message>
    <message>
        <source>Media type</source>
        <translation>Type de support</translation>
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
        <translation>Assemblage</translation>
    </message>
    <message>
        <source>Duplex</source>
        <translation>Recto verso</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Mise en page</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Livret</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Finition</translation>
    </message>
    <message>
        <source>Separation</source>
        <translation>Séparation</translation>
    </message>
    <message>
        <source>Folding mode</source>
        <translation>Mode de pliage</translation>
    </message>
    <message>
        <source>Folding side</source>
        <translation>Face du pli</translation>
    </message>
    <message>
        <source>Folding direction</source>
        <translation>Sens du pli</translation>
    </message>
    <message>
        <source>Folding method</source>
        <translation>Méthode de pliage</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Agrafage</translation>
    </message>
    <message>
        <source>Staple method</source>
        <translation>Type d&apos;agrafage</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Perforation</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>Imaging</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Trapping</source>
        <translation>Recouvrement</translation>
    </message>
    <message>
        <source>Gloss mode</source>
        <translation>Mode brillant</translation>
    </message>
    <message>
        <source>CIE optimization</source>
        <translation>Optimisation CIE</translation>
    </message>
    <message>
        <source>Halftone screen</source>
        <translation>Trame de demi-teintes</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>LeanPrint</source>
        <translation>LeanPrint</translation>
    </message>
    <message>
        <source>HSL/Color Balance</source>
        <translation>TSL/Balance des couleurs</translation>
    </message>
    <message>
        <source>Color adjustment</source>
        <translation>Réglage des couleurs</translation>
    </message>
    <message>
        <source>Monochrome adjustment</source>
        <translation>Réglage monochrome</translation>
    </message>
    <message>
        <source>Color mode</source>
        <translation>Mode couleur</translation>
    </message>
    <message>
        <source>Color reproduction</source>
        <translation>Reproduction couleurs</translation>
    </message>
    <message>
        <source>Color conversion</source>
        <translation>Conversion des couleurs</translation>
    </message>
    <message>
        <source>VRS</source>
        <translation>VRS</translation>
    </message>
    <message>
        <source>Print grays with black toner</source>
        <translation>Gris en toner noir</translation>
    </message>
    <message>
        <source>Publishing</source>
        <translation>Publication</translation>
    </message>
    <message>
        <source>Cover mode</source>
        <translation>Mode couverture</translation>
    </message>
    <message>
        <source>Page insert</source>
        <translation>Insertion de pages</translation>
    </message>
    <message>
        <source>Transparency interleaving</source>
        <translation>Intercalaires transp.</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Travail</translation>
    </message>
    <message>
        <source>Job settings</source>
        <translation>Paramètres du travail</translation>
    </message>
    <message>
        <source>Job accounting</source>
        <translation>Comptabilisation</translation>
    </message>
    <message>
        <source>Job name</source>
        <translation>Nom du travail</translation>
    </message>
    <message>
        <source>Job e-mail notification</source>
        <translation>Notification par e-mail</translation>
    </message>
    <message>
        <source>User login</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Filigrane</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Private print</source>
        <translation>Impression privée</translation>
    </message>
    <message>
        <source>Custom box</source>
        <translation>Boîte personnalisée</translation>
    </message>
    <message>
        <source>Custom watermark</source>
        <translation>Filigrane personnalisé</translation>
    </message>
    <message>
        <source>Black &amp; white</source>
        <translation>Noir et blanc</translation>
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
        <translation>Enregistrer le profil</translation>
    </message>
    <message>
        <source>The profile could not be added. A maximum profile count of 25 has been reached.</source>
        <translation>Le profil n&apos;a pas pu être ajouté. Le nombre maximal de 25 profils est atteint.</translation>
    </message>
    <message>
        <source>Select a printer.</source>
        <translation>Sélectionnez une imprimante.</translation>
    </message>
    <message>
        <source>This name is reserved</source>
        <translation>Ce nom est réservé</translation>
    </message>
    <message>
        <source>You must enter a profile name</source>
        <translation>Vous devez saisir un nom de profil</translation>
    </message>
</context>
<context>
    <name>PublishingTab</name>
    <message>
        <source>Cover mode:</source>
        <translation>Mode couverture:</translation>
    </message>
    <message>
        <source>Cover mode:</source>
        <comment>caption</comment>
        <translation>Couverture:</translation>
    </message>
    <message>
        <source>Media for cover:</source>
        <translation>Support de couverture:</translation>
    </message>
    <message>
        <source>Page insert:</source>
        <translation>Insertion de pages:</translation>
    </message>
    <message>
        <source>Page insert:</source>
        <comment>caption</comment>
        <translation>Encarts:</translation>
    </message>
    <message>
        <source>Media for page:</source>
        <translation>Support d&apos;insertion:</translation>
    </message>
    <message>
        <source>Transparency interleaving:</source>
        <translation>Intercalaires de transparents:</translation>
    </message>
    <message>
        <source>Transparency interleaving:</source>
        <comment>caption</comment>
        <translation>Inter-calaires:</translation>
    </message>
    <message>
        <source>Media for backing:</source>
        <translation>Support d&apos;intercalaire:</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>Front and back</source>
        <translation>Avant et arrière</translation>
    </message>
    <message>
        <source>Outside</source>
        <translation>Extérieur</translation>
    </message>
    <message>
        <source>Inside</source>
        <translation>Intérieur</translation>
    </message>
    <message>
        <source>Print onto front</source>
        <translation>Imprimer au recto</translation>
    </message>
    <message>
        <source>Print onto back</source>
        <translation>Imprimer au verso</translation>
    </message>
    <message>
        <source>Print onto backing</source>
        <translation>Imprimer l&apos;intercalaire</translation>
    </message>
    <message>
        <source>Print onto:</source>
        <translation>Imprimer sur:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Arrière</translation>
    </message>
    <message>
        <source>Insert before pages:</source>
        <translation>Insérer avant les pages:</translation>
    </message>
    <message>
        <source>Generic error message</source>
        <translation>Message d&apos;erreur générique</translation>
    </message>
    <message>
        <source>Please type a page range.</source>
        <translation>Saisissez une plage de pages.</translation>
    </message>
    <message>
        <source>Please enter your specified pages.</source>
        <translation>Saisissez les pages voulues.</translation>
    </message>
    <message>
        <source>You can only insert up to 50 pages.</source>
        <translation>Vous pouvez insérer 50 pages au maximum.</translation>
    </message>
    <message>
        <source>You can only enter page numbers between 3 and 511</source>
        <translation>Vous ne pouvez saisir que des numéros de page entre 3 et 511</translation>
    </message>
    <message>
        <source>You can only enter page numbers between 2 and 511</source>
        <translation>Vous ne pouvez saisir que des numéros de page entre 2 et 511</translation>
    </message>
    <message>
        <source>Publishing</source>
        <translation>Publication</translation>
    </message>
</context>
<context>
    <name>QDialogButtonBox</name>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
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
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
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
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>%1 and %2</source>
        <translation>%1 et %2</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 ou %2</translation>
    </message>
    <message>
        <source>Always on with %1</source>
        <translation>Toujours activé avec %1</translation>
    </message>
    <message>
        <source>Always on without %1</source>
        <translation>Toujours activé sans %1</translation>
    </message>
    <message>
        <source>Always on with %1 without %2</source>
        <translation>Toujours activé avec %1 sans %2</translation>
    </message>
    <message>
        <source>Not with %1</source>
        <translation>Pas avec %1</translation>
    </message>
    <message>
        <source>Not installed: %1 (see Printer)</source>
        <translation>Non installé&#xa0;: %1 (voir Imprimante)</translation>
    </message>
    <message>
        <source>Only with %1</source>
        <translation>Seulement avec %1</translation>
    </message>
    <message>
        <source>Not with %1 without %2</source>
        <translation>Pas avec %1 sans %2</translation>
    </message>
    <message>
        <source>Decided by the policy server</source>
        <translation>Décidé par le serveur de règles</translation>
    </message>
    <message>
        <source>Only %1 is left.</source>
        <translation>Il ne reste que «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>This printer does not offer it.</source>
        <translation>Cette imprimante ne le propose pas.</translation>
    </message>
    <message>
        <source>This printer offers nothing else.</source>
        <translation>Cette imprimante ne propose rien d&apos;autre.</translation>
    </message>
    <message>
        <source>Switch on %1 first.</source>
        <translation>Activez d&apos;abord «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Choose %1 first.</source>
        <translation>Choisissez d&apos;abord «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>SheetView</name>
    <message>
        <source>Click to change: %1</source>
        <translation>Cliquez pour modifier : %1</translation>
    </message>
</context>
<context>
    <name>Spoken</name>
    <message>
        <source>In conflict with other settings</source>
        <translation>En conflit avec d&apos;autres paramètres</translation>
    </message>
</context>
<context>
    <name>TelemetryDialog</name>
    <message>
        <source>Data Collection</source>
        <translation>Collecte de données</translation>
    </message>
    <message>
        <source>We ask you to help improve our application and/or products by providing usage information.</source>
        <translation>Nous vous demandons de nous aider à améliorer notre application et/ou nos produits en fournissant des informations d&apos;utilisation.</translation>
    </message>
    <message>
        <source>The application DOES NOT collect any personal data.</source>
        <translation>L&apos;application NE collecte AUCUNE donnée personnelle.</translation>
    </message>
    <message>
        <source>Regarding data collection, please read the PRIVACY POLICY as follows.</source>
        <translation>Concernant la collecte de données, veuillez lire la POLITIQUE DE CONFIDENTIALITÉ ci-dessous.</translation>
    </message>
    <message>
        <source>Yes, I want to help improve your products</source>
        <translation>Oui, je souhaite contribuer à l&apos;amélioration de vos produits</translation>
    </message>
    <message>
        <source>No, I do not wish to take part in this feature</source>
        <translation>Non, je ne souhaite pas participer à cette fonctionnalité</translation>
    </message>
</context>
<context>
    <name>UserLoginTab</name>
    <message>
        <source>User Login</source>
        <translation>Connexion utilisateur</translation>
    </message>
    <message>
        <source>User login</source>
        <translation>Connexion</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Value cannot contain the double quote (&quot;) character.</source>
        <translation>La valeur ne peut pas contenir de guillemet double (&quot;).</translation>
    </message>
    <message>
        <source>User name must be at least one character long.</source>
        <translation>Le nom d&apos;utilisateur doit comporter au moins un caractère.</translation>
    </message>
</context>
<context>
    <name>WatermarkTab</name>
    <message>
        <source>Font</source>
        <translation>Police</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
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
        <translation>Remplissage</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Filigrane</translation>
    </message>
    <message>
        <source>Watermark/Stamp</source>
        <translation>Filigrane/Tampon</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Repeat watermark</source>
        <translation>Répéter le filigrane</translation>
    </message>
    <message>
        <source>Super watermark</source>
        <translation>Super filigrane</translation>
    </message>
    <message>
        <source>Custom watermark</source>
        <translation>Filigrane personnalisé</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personnalisé</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Noir</translation>
    </message>
    <message>
        <source>Enter a text first.</source>
        <translation>Saisissez d&apos;abord un texte.</translation>
    </message>
    <message>
        <source>This text is in the list already.</source>
        <translation>Ce texte est déjà dans la liste.</translation>
    </message>
    <message>
        <source>Choose a text of your own first.</source>
        <translation>Choisissez d&apos;abord un de vos textes.</translation>
    </message>
    <message>
        <source>There is no such text of your own.</source>
        <translation>Ce texte n&apos;est pas un des vôtres.</translation>
    </message>
    <message>
        <source>Watermark</source>
        <comment>caption</comment>
        <extracomment>Short, since it stands below a small picture. A hyphen may break the line.</extracomment>
        <translation>Filigrane</translation>
    </message>
    <message>
        <source>Super watermark</source>
        <comment>caption</comment>
        <extracomment>Short, since it stands below a small picture. A hyphen may break the line.</extracomment>
        <translation>Super filigrane</translation>
    </message>
</context>
<context>
    <name>adjustmentDialog</name>
    <message>
        <source>Master</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Jaune</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
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
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personnalisé</translation>
    </message>
    <message>
        <source>HSL(hue, saturation and lightness)</source>
        <translation>TSL (teinte, saturation et luminosité)</translation>
    </message>
    <message>
        <source>Color balance</source>
        <translation>Balance des couleurs</translation>
    </message>
    <message>
        <source>Hue Adjustment</source>
        <translation>Réglage de la teinte</translation>
    </message>
    <message>
        <source>Color levels</source>
        <translation>Niveaux de couleur</translation>
    </message>
    <message>
        <source>Adjustment Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Modify</source>
        <translation>Modifier</translation>
    </message>
</context>
<context>
    <name>monoDialog</name>
    <message>
        <source>Custom</source>
        <translation>Personnalisé</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Adjustment Settings</source>
        <translation>Réglages</translation>
    </message>
</context>
</TS>
