<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_US">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Press Desk</source>
        <translation>Press Desk</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>Data collection</source>
        <translation>Recopilación de datos</translation>
    </message>
    <message>
        <source>Legal notices</source>
        <translation>Avisos legales</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>AccountEditDialog</name>
    <message>
        <source>Account ID:</source>
        <translation>ID de cuenta:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Descripción:</translation>
    </message>
    <message>
        <source>New Account ID</source>
        <translation>Nuevo ID de cuenta</translation>
    </message>
    <message>
        <source>Edit Account ID</source>
        <translation>Editar ID de cuenta</translation>
    </message>
</context>
<context>
    <name>AccountListDialog</name>
    <message>
        <source>New</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Account ID</source>
        <translation>ID de cuenta</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Select an account first.</source>
        <translation>Seleccione primero una cuenta.</translation>
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
        <translation>No ejecute %1 como root.</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Guardar como...</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Perfiles</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>It looks like your installed printers have changed.
Reloading list now.</source>
        <translation>Parece que sus impresoras instaladas han cambiado.
Se volverá a cargar la lista.</translation>
    </message>
    <message>
        <source>Select a printer.</source>
        <translation>Seleccione una impresora.</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Correcto</translation>
    </message>
    <message>
        <source>Settings applied.</source>
        <translation>Ajustes aplicados.</translation>
    </message>
    <message>
        <source>Error: Printer does not exist or lpoptions failed.</source>
        <translation>Error: la impresora no existe o lpoptions ha fallado.</translation>
    </message>
    <message>
        <source>The folder %1 is a link, or it belongs to somebody else (%2). Your settings are neither read from it nor saved in it. Ask an administrator to remove it or to make you its owner.</source>
        <translation>La carpeta %1 es un enlace o pertenece a otra persona (%2). Sus ajustes no se leen de ella ni se guardan en ella. Pida a un administrador que la elimine o que le haga su propietario.</translation>
    </message>
    <message>
        <source>See %1</source>
        <comment>pages with marks</comment>
        <translation>Vea %1</translation>
    </message>
    <message>
        <source>The PPD of %1 can&apos;t be read.</source>
        <translation>No se puede leer el PPD de %1.</translation>
    </message>
    <message>
        <source>Applying...</source>
        <translation>Aplicando...</translation>
    </message>
    <message>
        <source>Print server does not answer.</source>
        <translation>El servidor de impresión no responde.</translation>
    </message>
    <message>
        <source>The settings could not be saved in %1.</source>
        <translation>No se pudieron guardar los ajustes en %1.</translation>
    </message>
    <message>
        <source>The print system may use them all the same.</source>
        <translation>Es posible que el sistema de impresión los use de todos modos.</translation>
    </message>
</context>
<context>
    <name>BixTabWidget</name>
    <message>
        <source>Something has changed here.</source>
        <translation>Algo ha cambiado aquí.</translation>
    </message>
</context>
<context>
    <name>BookletTab</name>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>Left edge binding</source>
        <translation>Encuadernación izquierda</translation>
    </message>
    <message>
        <source>Right edge binding</source>
        <translation>Encuadernación derecha</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Diseño</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Folleto</translation>
    </message>
    <message>
        <source>Booklet fold</source>
        <translation>Plegado de folleto</translation>
    </message>
</context>
<context>
    <name>ChangeReport</name>
    <message>
        <source>The policy server</source>
        <translation>El servidor de directivas</translation>
    </message>
    <message>
        <source>Switched off: %1.</source>
        <translation>Desactivado: %1.</translation>
    </message>
    <message>
        <source>Changed: %1.</source>
        <translation>Cambiado: %1.</translation>
    </message>
    <message>
        <source>%1 switched off: %2.</source>
        <translation>%1 ha desactivado: %2.</translation>
    </message>
    <message>
        <source>%1 changed: %2.</source>
        <translation>%1 ha cambiado: %2.</translation>
    </message>
    <message>
        <source>%1 was switched off by %2.</source>
        <translation>Desactivado por %2: %1.</translation>
    </message>
    <message>
        <source>%1 were switched off by %2.</source>
        <translation>Desactivados por %2: %1.</translation>
    </message>
    <message>
        <source>Changed by %2: %1.</source>
        <translation>Cambiado por %2: %1.</translation>
    </message>
    <message>
        <source>Switch on again</source>
        <translation>Volver a activar</translation>
    </message>
    <message>
        <source>Change back</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Adjusted to this printer: %1.</source>
        <translation>Adaptado a esta impresora: %1.</translation>
    </message>
</context>
<context>
    <name>ColorGroup</name>
    <message>
        <source>Full color</source>
        <translation>A todo color</translation>
    </message>
    <message>
        <source>Black &amp; white</source>
        <translation>Blanco y negro</translation>
    </message>
</context>
<context>
    <name>FKPTab</name>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>Login user name</source>
        <translation>Nombre de usuario de inicio de sesión</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>No notifications for policy conflicts</source>
        <translation>Sin notificaciones de conflictos con las directivas</translation>
    </message>
    <message>
        <source>Continue printing</source>
        <translation>Continuar la impresión</translation>
    </message>
    <message>
        <source>Cancel printing</source>
        <translation>Cancelar la impresión</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Verificar</translation>
    </message>
    <message>
        <source>Unable to connect to the server.</source>
        <translation>No se puede conectar con el servidor.</translation>
    </message>
    <message>
        <source>Server, Port, and Login user information must be filled out.</source>
        <translation>Debe rellenar el servidor, el puerto y los datos de inicio de sesión.</translation>
    </message>
    <message>
        <source>You must click Verify after making changes.</source>
        <translation>Debe hacer clic en Verificar después de realizar cambios.</translation>
    </message>
    <message>
        <source>Login failed. The user name or password you entered is incorrect.</source>
        <translation>Error de inicio de sesión. El nombre de usuario o la contraseña introducidos no son correctos.</translation>
    </message>
    <message>
        <source>An unspecified error occured.</source>
        <translation>Se ha producido un error no especificado.</translation>
    </message>
    <message>
        <source>Server and user credentials have been authenticated and policies have been applied.

Credentials and policies will be checked again during printing.
</source>
        <translation>Se han autenticado el servidor y las credenciales del usuario y se han aplicado las directivas.

Las credenciales y las directivas se volverán a comprobar durante la impresión.
</translation>
    </message>
    <message>
        <source>You do not have permission to print.</source>
        <translation>No tiene permiso para imprimir.</translation>
    </message>
</context>
<context>
    <name>FinishingTab</name>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>Offset jobs</source>
        <translation>Desplazar trabajos</translation>
    </message>
    <message>
        <source>Rotate copies</source>
        <translation>Girar copias</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Tri-Fold</source>
        <translation>Plegado en tres</translation>
    </message>
    <message>
        <source>Bi-Fold</source>
        <translation>Plegado en dos</translation>
    </message>
    <message>
        <source>Staple:</source>
        <translation>Grapado:</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Perforación</translation>
    </message>
    <message>
        <source>Print side</source>
        <translation>Cara de impresión</translation>
    </message>
    <message>
        <source>Direction of fold</source>
        <translation>Dirección del pliegue</translation>
    </message>
    <message>
        <source>Number of sheets</source>
        <translation>Número de hojas</translation>
    </message>
    <message>
        <source>Staple location:</source>
        <translation>Posición de la grapa:</translation>
    </message>
    <message>
        <source>Staple method</source>
        <translation>Tipo de grapado</translation>
    </message>
    <message>
        <source>Punch Method:</source>
        <translation>Tipo de perforación:</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Acabado</translation>
    </message>
    <message>
        <source>Separation</source>
        <translation>Separación</translation>
    </message>
    <message>
        <source>Hole punch</source>
        <translation>Perforación</translation>
    </message>
</context>
<context>
    <name>GeneralTab</name>
    <message>
        <source>Basic</source>
        <translation>Básico</translation>
    </message>
    <message>
        <source>Media size</source>
        <translation>Tamaño del papel</translation>
    </message>
    <message>
        <source>Media type</source>
        <translation>Tipo de papel</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Origen</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Intercalado</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Duplex</source>
        <translation>Dúplex</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>Borde largo</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>Borde corto</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Print size</source>
        <translation>Tamaño de impresión</translation>
    </message>
</context>
<context>
    <name>ImagingTab</name>
    <message>
        <source>Trapping</source>
        <translation>Reventado</translation>
    </message>
    <message>
        <source>Gloss mode</source>
        <translation>Modo brillo</translation>
    </message>
    <message>
        <source>CIE optimization</source>
        <translation>Optimización CIE</translation>
    </message>
    <message>
        <source>Halftone screen</source>
        <translation>Trama de medios tonos</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>Color reproduction</source>
        <translation>Reproducción del color</translation>
    </message>
    <message>
        <source>Color conversion</source>
        <translation>Conversión de color</translation>
    </message>
    <message>
        <source>VRS</source>
        <translation>VRS</translation>
    </message>
    <message>
        <source>Print grays with black toner</source>
        <translation>Imprimir grises con tóner negro</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Imaging</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Print quality</source>
        <translation>Calidad de impresión</translation>
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
        <translation>Ajuste</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Ajustes...</translation>
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
        <translation>El ID de cuenta debe tener entre 1 y 8 dígitos</translation>
    </message>
    <message>
        <source>Private print</source>
        <translation>Impresión privada</translation>
    </message>
    <message>
        <source>Custom box</source>
        <translation>Buzón personalizado</translation>
    </message>
    <message>
        <source>Value cannot contain the double quote (&quot;) character.</source>
        <translation>El valor no puede contener comillas dobles (&quot;).</translation>
    </message>
    <message>
        <source>Job accounting</source>
        <translation>Contabilidad de trabajos</translation>
    </message>
    <message>
        <source>Job accounting</source>
        <comment>caption</comment>
        <extracomment>Short, since it stands below a small picture.</extracomment>
        <translation>Cuentas</translation>
    </message>
    <message>
        <source>Select account ID</source>
        <translation>Elegir ID de cuenta</translation>
    </message>
    <message>
        <source>Account ID List</source>
        <translation>Lista de ID de cuenta</translation>
    </message>
    <message>
        <source>Use specific account ID</source>
        <translation>ID de cuenta específico</translation>
    </message>
    <message>
        <source>You must add an account ID to the list.</source>
        <translation>Debe añadir un ID de cuenta a la lista.</translation>
    </message>
    <message>
        <source>Job e-mail notification</source>
        <translation>Notificación por correo electrónico</translation>
    </message>
    <message>
        <source>Job e-mail notification</source>
        <comment>caption</comment>
        <extracomment>Short, since it stands below a small picture.</extracomment>
        <translation>Aviso por correo</translation>
    </message>
    <message>
        <source>Enter a valid e-mail address.</source>
        <translation>Introduzca una dirección de correo electrónico válida.</translation>
    </message>
    <message>
        <source>Enter the e-mail address in a valid format.
For example: %1</source>
        <translation>Introduzca la dirección de correo electrónico en un formato válido.
Por ejemplo: %1</translation>
    </message>
    <message>
        <source>E-mail address cannot contain any spaces.</source>
        <translation>La dirección de correo electrónico no puede contener espacios.</translation>
    </message>
    <message>
        <source>E-mail address should use only ASCII characters.</source>
        <translation>La dirección de correo electrónico solo debe contener caracteres ASCII.</translation>
    </message>
    <message>
        <source>User Login</source>
        <translation>Inicio de sesión del usuario</translation>
    </message>
    <message>
        <source>User login</source>
        <extracomment>Short, since it stands below a small picture.</extracomment>
        <translation>Inicio de sesión</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Contraseña:</translation>
    </message>
    <message>
        <source>User name must be at least one character long.</source>
        <translation>El nombre de usuario debe tener al menos un carácter.</translation>
    </message>
    <message>
        <source>Job name</source>
        <translation>Nombre del trabajo</translation>
    </message>
    <message>
        <source>Overwrite job name:</source>
        <translation>Sobrescribir nombre:</translation>
    </message>
    <message>
        <source>Application defined</source>
        <translation>Definido por la aplicación</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizado</translation>
    </message>
    <message>
        <source>Use job name + date and time</source>
        <translation>Nombre + fecha y hora</translation>
    </message>
    <message>
        <source>Replace existing file</source>
        <translation>Reemplazar archivo</translation>
    </message>
    <message>
        <source>The custom job name field requires a name within a 64 character limit.</source>
        <translation>El nombre de trabajo personalizado debe tener entre 1 y 64 caracteres.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>Job settings</source>
        <translation>Ajustes del trabajo</translation>
    </message>
    <message>
        <source>Job storage:</source>
        <extracomment>Short, since it stands below a small picture.</extracomment>
        <translation>Almacenar:</translation>
    </message>
    <message>
        <source>Access code</source>
        <translation>Código de acceso</translation>
    </message>
    <message>
        <source>Box number</source>
        <translation>Número de buzón</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Job storage</source>
        <translation>Almacenamiento de trabajos</translation>
    </message>
    <message>
        <source>Proof and hold</source>
        <translation>Prueba y retención</translation>
    </message>
    <message>
        <source>Access code must be 4 numbers in length.</source>
        <translation>El código de acceso debe tener 4 dígitos.</translation>
    </message>
    <message>
        <source>Enter a custom box number between 1 and 1000.</source>
        <translation>Introduzca un número de buzón entre 1 y 1000.</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Trabajo</translation>
    </message>
    <message>
        <source>This Account ID already exists.</source>
        <translation>Este ID de cuenta ya existe.</translation>
    </message>
    <message>
        <source>Account ID Error</source>
        <translation>Error de ID de cuenta</translation>
    </message>
    <message>
        <source>Custom job name</source>
        <translation>Nombre de trabajo personalizado</translation>
    </message>
</context>
<context>
    <name>LicenseDialog</name>
    <message>
        <source>Legal Notices</source>
        <translation>Avisos legales</translation>
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
        <translation>%1 y uno más</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 y %2 más</translation>
    </message>
</context>
<context>
    <name>OptionLabels</name>
    <message>
        <source>On</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
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
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activado</translation>
    </message>
</context>
<context>
    <name>PasswordPrompt</name>
    <message>
        <source>Password Prompt</source>
        <translation>Solicitud de contraseña</translation>
    </message>
    <message>
        <source>Please enter the root password.</source>
        <translation>Introduzca la contraseña de root.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Could not authorize.</source>
        <translation>No se pudo autorizar.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be handed to the program that changes the printer: only letters, digits and %2 can.</source>
        <translation>&quot;%1&quot; no puede pasarse al programa que modifica la impresora: solo se admiten letras, cifras y %2.</translation>
    </message>
    <message>
        <source>The program %1 is missing. An administrator has to install it in a folder of root&apos;s search path, such as /usr/sbin.</source>
        <translation>Falta el programa %1. Un administrador debe instalarlo en una carpeta de la ruta de búsqueda de root, por ejemplo /usr/sbin.</translation>
    </message>
    <message>
        <source>sudo wants your own password.</source>
        <translation>sudo pide su propia contraseña.</translation>
    </message>
    <message>
        <source>su wants the administrator&apos;s password (root).</source>
        <translation>su pide la contraseña del administrador (root).</translation>
    </message>
    <message>
        <source>Method</source>
        <translation>Método</translation>
    </message>
</context>
<context>
    <name>PrinterStatus</name>
    <message>
        <source>Idle</source>
        <translation>Inactiva</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pausa</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Imprimiendo</translation>
    </message>
    <message>
        <source>Error: Printer does not exist or lpstat failed.</source>
        <translation>Error: la impresora no existe o lpstat ha fallado.</translation>
    </message>
</context>
<context>
    <name>PrinterTab</name>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>Installed options</source>
        <translation>Opciones instaladas</translation>
    </message>
    <message>
        <source>Root access is required to make changes to installable options</source>
        <translation>Se necesita acceso root para cambiar las opciones instalables</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Impresoras</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Select a printer.</source>
        <translation>Seleccione una impresora.</translation>
    </message>
    <message>
        <source>Asking...</source>
        <translation>Consultando...</translation>
    </message>
    <message>
        <source>The print system (CUPS) does not answer, so no printer can be listed.</source>
        <translation>El sistema de impresión (CUPS) no responde; no se puede mostrar ninguna impresora.</translation>
    </message>
    <message>
        <source>There is no Brixola printer yet. A print queue counts as one if it uses the PPD of a Brixola or NV-RATEX printer; a driverless one does not. Add the printer with that PPD in the print settings of your system or with lpadmin.</source>
        <translation>Todavía no hay ninguna impresora Brixola. Se reconoce como tal una cola de impresión que use el PPD de una impresora Brixola o NV-RATEX; una cola sin controlador, no. Agregue la impresora con ese PPD en los ajustes de impresión del sistema o con lpadmin.</translation>
    </message>
    <message>
        <source>Look again</source>
        <translation>Buscar de nuevo</translation>
    </message>
</context>
<context>
    <name>ProfileDialog</name>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Editar...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Perfiles</translation>
    </message>
    <message>
        <source>Save Profiles</source>
        <translation>Guardar perfiles</translation>
    </message>
    <message>
        <source>Edit Profile</source>
        <translation>Editar perfil</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Detalle</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Elemento</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Select profile:</source>
        <translation>Seleccionar perfil:</translation>
    </message>
    <message>
        <source>Factory Default</source>
        <translation>Valor predeterminado de fábrica</translation>
    </message>
    <message>
        <source>Resolve the marked conflicts first.</source>
        <translation>Resuelva primero los conflictos marcados.</translation>
    </message>
    <message>
        <source>Select a profile of your own first.</source>
        <translation>Seleccione primero un perfil propio.</translation>
    </message>
    <message>
        <source>The profile does not say which printer these values are of.</source>
        <translation>El perfil no indica a qué impresora pertenecen estos valores.</translation>
    </message>
    <message>
        <source>There is no PPD of %1 here to name these values. An administrator can add it with brixola-press-desk-ppds.</source>
        <translation>Aquí no hay ningún PPD de %1 que dé nombre a estos valores. Un administrador puede añadirlo con brixola-press-desk-ppds.</translation>
    </message>
</context>
<context>
    <name>ProfileEditDialog</name>
    <message>
        <source>Description:</source>
        <translation>Descripción:</translation>
    </message>
    <message>
        <source>Edit Profile</source>
        <translation>Editar perfil</translation>
    </message>
</context>
<context>
    <name>ProfileFormDialog</name>
    <message>
        <source>Name:</source>
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>Enter a name first.</source>
        <translation>Introduzca primero un nombre.</translation>
    </message>
    <message>
        <source>This name is reserved.</source>
        <translation>Este nombre está reservado.</translation>
    </message>
    <message>
        <source>A name can&apos;t begin with a dot, nor contain / &quot; ` or ;</source>
        <translation>Un nombre no puede empezar por un punto ni contener / &quot; ` o ;</translation>
    </message>
    <message>
        <source>The name or the description is too long.</source>
        <translation>El nombre o la descripción es demasiado largo.</translation>
    </message>
    <message>
        <source>The profile could not be saved.</source>
        <translation>No se pudo guardar el perfil.</translation>
    </message>
</context>
<context>
    <name>ProfileReader</name>
    <message>
        <source>Profiles</source>
        <translation>Perfiles</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>Básico</translation>
    </message>
    <message>
        <source>Print size</source>
        <translation>Tamaño de impresión</translation>
    </message>
    <message>
        <source>Media type</source>
        <translation>Tipo de papel</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Origen</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Intercalado</translation>
    </message>
    <message>
        <source>Duplex</source>
        <translation>Dúplex</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Diseño</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Folleto</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Acabado</translation>
    </message>
    <message>
        <source>Separation</source>
        <translation>Separación</translation>
    </message>
    <message>
        <source>Folding mode</source>
        <translation>Modo de plegado</translation>
    </message>
    <message>
        <source>Folding side</source>
        <translation>Cara del plegado</translation>
    </message>
    <message>
        <source>Folding direction</source>
        <translation>Sentido del plegado</translation>
    </message>
    <message>
        <source>Folding method</source>
        <translation>Método de plegado</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Grapado</translation>
    </message>
    <message>
        <source>Staple method</source>
        <translation>Tipo de grapado</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Perforación</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Girar</translation>
    </message>
    <message>
        <source>Imaging</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Trapping</source>
        <translation>Reventado</translation>
    </message>
    <message>
        <source>Gloss mode</source>
        <translation>Modo brillo</translation>
    </message>
    <message>
        <source>CIE optimization</source>
        <translation>Optimización CIE</translation>
    </message>
    <message>
        <source>Halftone screen</source>
        <translation>Trama de medios tonos</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>LeanPrint</source>
        <translation>LeanPrint</translation>
    </message>
    <message>
        <source>HSL/Color Balance</source>
        <translation>HSL/Balance de color</translation>
    </message>
    <message>
        <source>Color adjustment</source>
        <translation>Ajuste de color</translation>
    </message>
    <message>
        <source>Monochrome adjustment</source>
        <translation>Ajuste monocromo</translation>
    </message>
    <message>
        <source>Color mode</source>
        <translation>Modo de color</translation>
    </message>
    <message>
        <source>Color reproduction</source>
        <translation>Reproducción del color</translation>
    </message>
    <message>
        <source>Color conversion</source>
        <translation>Conversión de color</translation>
    </message>
    <message>
        <source>VRS</source>
        <translation>VRS</translation>
    </message>
    <message>
        <source>Print grays with black toner</source>
        <translation>Grises con tóner negro</translation>
    </message>
    <message>
        <source>Publishing</source>
        <translation>Publicación</translation>
    </message>
    <message>
        <source>Cover mode</source>
        <translation>Modo de portada</translation>
    </message>
    <message>
        <source>Page insert</source>
        <translation>Inserción de páginas</translation>
    </message>
    <message>
        <source>Transparency interleaving</source>
        <translation>Intercalado transp.</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Trabajo</translation>
    </message>
    <message>
        <source>Job settings</source>
        <translation>Ajustes del trabajo</translation>
    </message>
    <message>
        <source>Job accounting</source>
        <translation>Contabilidad de trabajos</translation>
    </message>
    <message>
        <source>Job name</source>
        <translation>Nombre del trabajo</translation>
    </message>
    <message>
        <source>Job e-mail notification</source>
        <translation>Notificación por correo</translation>
    </message>
    <message>
        <source>User login</source>
        <translation>Inicio de sesión</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Marca de agua</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>Private print</source>
        <translation>Impresión privada</translation>
    </message>
    <message>
        <source>Custom box</source>
        <translation>Buzón personalizado</translation>
    </message>
    <message>
        <source>Custom watermark</source>
        <translation>Marca de agua personalizada</translation>
    </message>
    <message>
        <source>Black &amp; white</source>
        <translation>Blanco y negro</translation>
    </message>
</context>
<context>
    <name>ProfileSaveDialog</name>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Save Profile</source>
        <translation>Guardar perfil</translation>
    </message>
    <message>
        <source>The profile could not be added. A maximum profile count of 25 has been reached.</source>
        <translation>No se pudo añadir el perfil. Se ha alcanzado el número máximo de 25 perfiles.</translation>
    </message>
    <message>
        <source>Select a printer.</source>
        <translation>Seleccione una impresora.</translation>
    </message>
    <message>
        <source>This name is reserved</source>
        <translation>Este nombre está reservado</translation>
    </message>
    <message>
        <source>You must enter a profile name</source>
        <translation>Debe introducir un nombre de perfil</translation>
    </message>
</context>
<context>
    <name>PublishingTab</name>
    <message>
        <source>Cover mode:</source>
        <translation>Modo de cubierta:</translation>
    </message>
    <message>
        <source>Cover mode:</source>
        <comment>caption</comment>
        <translation>Modo de cubierta:</translation>
    </message>
    <message>
        <source>Media for cover:</source>
        <translation>Papel de la cubierta:</translation>
    </message>
    <message>
        <source>Page insert:</source>
        <translation>Inserción de páginas:</translation>
    </message>
    <message>
        <source>Page insert:</source>
        <comment>caption</comment>
        <translation>Insertar páginas:</translation>
    </message>
    <message>
        <source>Media for page:</source>
        <translation>Papel de la inserción:</translation>
    </message>
    <message>
        <source>Transparency interleaving:</source>
        <translation>Separar transparencias:</translation>
    </message>
    <message>
        <source>Transparency interleaving:</source>
        <comment>caption</comment>
        <translation>Separa-dores:</translation>
    </message>
    <message>
        <source>Media for backing:</source>
        <translation>Papel intercalado:</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>Frontal</translation>
    </message>
    <message>
        <source>Front and back</source>
        <translation>Frontal y posterior</translation>
    </message>
    <message>
        <source>Outside</source>
        <translation>Exterior</translation>
    </message>
    <message>
        <source>Inside</source>
        <translation>Interior</translation>
    </message>
    <message>
        <source>Print onto front</source>
        <translation>Imprimir en el anverso</translation>
    </message>
    <message>
        <source>Print onto back</source>
        <translation>Imprimir en el reverso</translation>
    </message>
    <message>
        <source>Print onto backing</source>
        <translation>Imprimir el separador</translation>
    </message>
    <message>
        <source>Print onto:</source>
        <translation>Imprimir en:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Posterior</translation>
    </message>
    <message>
        <source>Insert before pages:</source>
        <translation>Insertar antes de las páginas:</translation>
    </message>
    <message>
        <source>Generic error message</source>
        <translation>Mensaje de error genérico</translation>
    </message>
    <message>
        <source>Please type a page range.</source>
        <translation>Escriba un intervalo de páginas.</translation>
    </message>
    <message>
        <source>Please enter your specified pages.</source>
        <translation>Introduzca las páginas deseadas.</translation>
    </message>
    <message>
        <source>You can only insert up to 50 pages.</source>
        <translation>Solo se pueden insertar 50 páginas como máximo.</translation>
    </message>
    <message>
        <source>You can only enter page numbers between 3 and 511</source>
        <translation>Solo se pueden introducir números de página entre 3 y 511</translation>
    </message>
    <message>
        <source>You can only enter page numbers between 2 and 511</source>
        <translation>Solo se pueden introducir números de página entre 2 y 511</translation>
    </message>
    <message>
        <source>Publishing</source>
        <translation>Publicación</translation>
    </message>
</context>
<context>
    <name>QDialogButtonBox</name>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
</context>
<context>
    <name>QGnomeTheme</name>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>%1 and %2</source>
        <translation>%1 y %2</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 o %2</translation>
    </message>
    <message>
        <source>Always on with %1</source>
        <translation>Siempre activado con %1</translation>
    </message>
    <message>
        <source>Always on without %1</source>
        <translation>Siempre activado sin %1</translation>
    </message>
    <message>
        <source>Always on with %1 without %2</source>
        <translation>Siempre activado con %1 sin %2</translation>
    </message>
    <message>
        <source>Not with %1</source>
        <translation>No con %1</translation>
    </message>
    <message>
        <source>Not installed: %1 (see Printer)</source>
        <translation>No instalado: %1 (vea Impresora)</translation>
    </message>
    <message>
        <source>Only with %1</source>
        <translation>Solo con %1</translation>
    </message>
    <message>
        <source>Not with %1 without %2</source>
        <translation>No con %1 sin %2</translation>
    </message>
    <message>
        <source>Decided by the policy server</source>
        <translation>Lo decide el servidor de directivas</translation>
    </message>
    <message>
        <source>Only %1 is left.</source>
        <translation>Solo queda &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>This printer does not offer it.</source>
        <translation>Esta impresora no lo ofrece.</translation>
    </message>
    <message>
        <source>This printer offers nothing else.</source>
        <translation>Esta impresora no ofrece otra cosa.</translation>
    </message>
    <message>
        <source>Switch on %1 first.</source>
        <translation>Active primero &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Choose %1 first.</source>
        <translation>Elija primero &quot;%1&quot;.</translation>
    </message>
</context>
<context>
    <name>SheetView</name>
    <message>
        <source>Click to change: %1</source>
        <translation>Haga clic para cambiar: %1</translation>
    </message>
</context>
<context>
    <name>Spoken</name>
    <message>
        <source>In conflict with other settings</source>
        <translation>En conflicto con otros ajustes</translation>
    </message>
</context>
<context>
    <name>TelemetryDialog</name>
    <message>
        <source>Data Collection</source>
        <translation>Recopilación de datos</translation>
    </message>
    <message>
        <source>We ask you to help improve our application and/or products by providing usage information.</source>
        <translation>Le pedimos que nos ayude a mejorar nuestra aplicación y/o nuestros productos proporcionando información de uso.</translation>
    </message>
    <message>
        <source>The application DOES NOT collect any personal data.</source>
        <translation>La aplicación NO recopila ningún dato personal.</translation>
    </message>
    <message>
        <source>Regarding data collection, please read the PRIVACY POLICY as follows.</source>
        <translation>Con respecto a la recopilación de datos, lea la POLÍTICA DE PRIVACIDAD que sigue.</translation>
    </message>
    <message>
        <source>Yes, I want to help improve your products</source>
        <translation>Sí, quiero ayudar a mejorar sus productos</translation>
    </message>
    <message>
        <source>No, I do not wish to take part in this feature</source>
        <translation>No, no deseo participar en esta función</translation>
    </message>
</context>
<context>
    <name>UserLoginTab</name>
    <message>
        <source>User Login</source>
        <translation>Inicio de sesión del usuario</translation>
    </message>
    <message>
        <source>User login</source>
        <translation>Inicio de sesión</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Value cannot contain the double quote (&quot;) character.</source>
        <translation>El valor no puede contener comillas dobles (&quot;).</translation>
    </message>
    <message>
        <source>User name must be at least one character long.</source>
        <translation>El nombre de usuario debe tener al menos un carácter.</translation>
    </message>
</context>
<context>
    <name>WatermarkTab</name>
    <message>
        <source>Font</source>
        <translation>Fuente</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Ángulo</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Estilo</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Relleno</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Marca de agua</translation>
    </message>
    <message>
        <source>Watermark/Stamp</source>
        <translation>Marca de agua/Sello</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Repeat watermark</source>
        <translation>Repetir marca de agua</translation>
    </message>
    <message>
        <source>Super watermark</source>
        <translation>Super marca de agua</translation>
    </message>
    <message>
        <source>Custom watermark</source>
        <translation>Marca de agua personalizada</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizado</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Negro</translation>
    </message>
    <message>
        <source>Enter a text first.</source>
        <translation>Introduzca primero un texto.</translation>
    </message>
    <message>
        <source>This text is in the list already.</source>
        <translation>Este texto ya está en la lista.</translation>
    </message>
    <message>
        <source>Choose a text of your own first.</source>
        <translation>Elija primero un texto propio.</translation>
    </message>
    <message>
        <source>There is no such text of your own.</source>
        <translation>Este texto no es suyo.</translation>
    </message>
    <message>
        <source>Watermark</source>
        <comment>caption</comment>
        <extracomment>Short, since it stands below a small picture. A hyphen may break the line.</extracomment>
        <translation>Marca de agua</translation>
    </message>
    <message>
        <source>Super watermark</source>
        <comment>caption</comment>
        <extracomment>Short, since it stands below a small picture. A hyphen may break the line.</extracomment>
        <translation>Super marca de agua</translation>
    </message>
</context>
<context>
    <name>adjustmentDialog</name>
    <message>
        <source>Master</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rojo</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Amarillo</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Cyan</source>
        <translation>Cian</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturación</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Luminosidad</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizado</translation>
    </message>
    <message>
        <source>HSL(hue, saturation and lightness)</source>
        <translation>HSL (tono, saturación y luminosidad)</translation>
    </message>
    <message>
        <source>Color balance</source>
        <translation>Balance de color</translation>
    </message>
    <message>
        <source>Hue Adjustment</source>
        <translation>Ajuste de tono</translation>
    </message>
    <message>
        <source>Color levels</source>
        <translation>Niveles de color</translation>
    </message>
    <message>
        <source>Adjustment Settings</source>
        <translation>Parámetros de ajuste</translation>
    </message>
    <message>
        <source>Modify</source>
        <translation>Modificar</translation>
    </message>
</context>
<context>
    <name>monoDialog</name>
    <message>
        <source>Custom</source>
        <translation>Personalizado</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Adjustment Settings</source>
        <translation>Parámetros de ajuste</translation>
    </message>
</context>
</TS>
