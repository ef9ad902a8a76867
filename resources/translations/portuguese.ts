<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT" sourcelanguage="en_US">
<context>
    <name>AboutDialog</name>
    <message>
        <source>About</source>
        <translation>Acerca</translation>
    </message>
    <message>
        <source>Press Desk</source>
        <translation>Press Desk</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versão</translation>
    </message>
    <message>
        <source>Data collection</source>
        <translation>Recolha de dados</translation>
    </message>
    <message>
        <source>Legal notices</source>
        <translation>Avisos legais</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>AccountEditDialog</name>
    <message>
        <source>Account ID:</source>
        <translation>ID da conta:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Descrição:</translation>
    </message>
    <message>
        <source>New Account ID</source>
        <translation>Novo ID de conta</translation>
    </message>
    <message>
        <source>Edit Account ID</source>
        <translation>Editar ID da conta</translation>
    </message>
</context>
<context>
    <name>AccountListDialog</name>
    <message>
        <source>New</source>
        <translation>Novo</translation>
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
        <translation>ID da conta</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descrição</translation>
    </message>
    <message>
        <source>Select an account first.</source>
        <translation>Selecione primeiro uma conta.</translation>
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
        <translation>Não execute %1 como root.</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Guardar como...</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Perfis</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>It looks like your installed printers have changed.
Reloading list now.</source>
        <translation>Parece que as impressoras instaladas mudaram.
A lista vai ser recarregada.</translation>
    </message>
    <message>
        <source>Select a printer.</source>
        <translation>Selecione uma impressora.</translation>
    </message>
    <message>
        <source>Success</source>
        <translation>Êxito</translation>
    </message>
    <message>
        <source>Settings applied.</source>
        <translation>Definições aplicadas.</translation>
    </message>
    <message>
        <source>Error: Printer does not exist or lpoptions failed.</source>
        <translation>Erro: a impressora não existe ou o lpoptions falhou.</translation>
    </message>
    <message>
        <source>The folder %1 is a link, or it belongs to somebody else (%2). Your settings are neither read from it nor saved in it. Ask an administrator to remove it or to make you its owner.</source>
        <translation>A pasta %1 é uma ligação ou pertence a outra pessoa (%2). As suas definições não são lidas dela nem guardadas nela. Peça a um administrador que a remova ou que o torne proprietário dela.</translation>
    </message>
    <message>
        <source>See %1</source>
        <comment>pages with marks</comment>
        <translation>Ver %1</translation>
    </message>
    <message>
        <source>The PPD of %1 can&apos;t be read.</source>
        <translation>Não é possível ler o PPD de %1.</translation>
    </message>
    <message>
        <source>Applying...</source>
        <translation>A aplicar...</translation>
    </message>
    <message>
        <source>Print server does not answer.</source>
        <translation>O servidor de impressão não responde.</translation>
    </message>
    <message>
        <source>The settings could not be saved in %1.</source>
        <translation>Não foi possível guardar as definições em %1.</translation>
    </message>
    <message>
        <source>The print system may use them all the same.</source>
        <translation>Mesmo assim, o sistema de impressão pode usá-las.</translation>
    </message>
</context>
<context>
    <name>BixTabWidget</name>
    <message>
        <source>Something has changed here.</source>
        <translation>Algo mudou aqui.</translation>
    </message>
</context>
<context>
    <name>BookletTab</name>
    <message>
        <source>Off</source>
        <translation>Desativado</translation>
    </message>
    <message>
        <source>Left edge binding</source>
        <translation>Encadernação à esquerda</translation>
    </message>
    <message>
        <source>Right edge binding</source>
        <translation>Encadernação à direita</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Esquema</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Livreto</translation>
    </message>
    <message>
        <source>Booklet fold</source>
        <translation>Dobra de livreto</translation>
    </message>
</context>
<context>
    <name>ChangeReport</name>
    <message>
        <source>The policy server</source>
        <translation>O servidor de políticas</translation>
    </message>
    <message>
        <source>Switched off: %1.</source>
        <translation>Desativado: %1.</translation>
    </message>
    <message>
        <source>Changed: %1.</source>
        <translation>Alterado: %1.</translation>
    </message>
    <message>
        <source>%1 switched off: %2.</source>
        <translation>%1 desativou: %2.</translation>
    </message>
    <message>
        <source>%1 changed: %2.</source>
        <translation>%1 alterou: %2.</translation>
    </message>
    <message>
        <source>%1 was switched off by %2.</source>
        <translation>Desativado por %2: %1.</translation>
    </message>
    <message>
        <source>%1 were switched off by %2.</source>
        <translation>Desativados por %2: %1.</translation>
    </message>
    <message>
        <source>Changed by %2: %1.</source>
        <translation>Alterado por %2: %1.</translation>
    </message>
    <message>
        <source>Switch on again</source>
        <translation>Ativar novamente</translation>
    </message>
    <message>
        <source>Change back</source>
        <translation>Repor</translation>
    </message>
    <message>
        <source>Adjusted to this printer: %1.</source>
        <translation>Adaptado a esta impressora: %1.</translation>
    </message>
</context>
<context>
    <name>ColorGroup</name>
    <message>
        <source>Full color</source>
        <translation>Em cores</translation>
    </message>
    <message>
        <source>Black &amp; white</source>
        <translation>Preto e branco</translation>
    </message>
</context>
<context>
    <name>FKPTab</name>
    <message>
        <source>Off</source>
        <translation>Desativado</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ativado</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Porta</translation>
    </message>
    <message>
        <source>Login user name</source>
        <translation>Nome de utilizador para início de sessão</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Palavra-passe</translation>
    </message>
    <message>
        <source>No notifications for policy conflicts</source>
        <translation>Sem notificações de conflitos com as políticas</translation>
    </message>
    <message>
        <source>Continue printing</source>
        <translation>Continuar a impressão</translation>
    </message>
    <message>
        <source>Cancel printing</source>
        <translation>Cancelar a impressão</translation>
    </message>
    <message>
        <source>Verify</source>
        <translation>Verificar</translation>
    </message>
    <message>
        <source>Unable to connect to the server.</source>
        <translation>Não foi possível estabelecer ligação ao servidor.</translation>
    </message>
    <message>
        <source>Server, Port, and Login user information must be filled out.</source>
        <translation>É necessário preencher o servidor, a porta e os dados de início de sessão.</translation>
    </message>
    <message>
        <source>You must click Verify after making changes.</source>
        <translation>Tem de clicar em Verificar depois de fazer alterações.</translation>
    </message>
    <message>
        <source>Login failed. The user name or password you entered is incorrect.</source>
        <translation>Falha ao iniciar sessão. O nome de utilizador ou a palavra-passe introduzidos estão incorretos.</translation>
    </message>
    <message>
        <source>An unspecified error occured.</source>
        <translation>Ocorreu um erro não especificado.</translation>
    </message>
    <message>
        <source>Server and user credentials have been authenticated and policies have been applied.

Credentials and policies will be checked again during printing.
</source>
        <translation>O servidor e as credenciais do utilizador foram autenticados e as políticas foram aplicadas.

As credenciais e as políticas serão verificadas novamente durante a impressão.
</translation>
    </message>
    <message>
        <source>You do not have permission to print.</source>
        <translation>Não tem permissão para imprimir.</translation>
    </message>
</context>
<context>
    <name>FinishingTab</name>
    <message>
        <source>Off</source>
        <translation>Desativado</translation>
    </message>
    <message>
        <source>Offset jobs</source>
        <translation>Deslocar trabalhos</translation>
    </message>
    <message>
        <source>Rotate copies</source>
        <translation>Girar cópias</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ativado</translation>
    </message>
    <message>
        <source>Tri-Fold</source>
        <translation>Dobra em três</translation>
    </message>
    <message>
        <source>Bi-Fold</source>
        <translation>Dobra ao meio</translation>
    </message>
    <message>
        <source>Staple:</source>
        <translation>Agrafamento:</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Perfuração</translation>
    </message>
    <message>
        <source>Print side</source>
        <translation>Lado de impressão</translation>
    </message>
    <message>
        <source>Direction of fold</source>
        <translation>Direção da dobra</translation>
    </message>
    <message>
        <source>Number of sheets</source>
        <translation>Número de folhas</translation>
    </message>
    <message>
        <source>Staple location:</source>
        <translation>Posição do agrafo:</translation>
    </message>
    <message>
        <source>Staple method</source>
        <translation>Tipo de agrafamento</translation>
    </message>
    <message>
        <source>Punch Method:</source>
        <translation>Tipo de perfuração:</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Acabamento</translation>
    </message>
    <message>
        <source>Separation</source>
        <translation>Separação</translation>
    </message>
    <message>
        <source>Hole punch</source>
        <translation>Perfuração</translation>
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
        <translation>Tamanho do suporte</translation>
    </message>
    <message>
        <source>Media type</source>
        <translation>Tipo de suporte</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Origem</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Agrupamento</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desativado</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ativado</translation>
    </message>
    <message>
        <source>Duplex</source>
        <translation>Frente e verso</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>Margem longa</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>Margem curta</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Cor</translation>
    </message>
    <message>
        <source>Print size</source>
        <translation>Tamanho de impressão</translation>
    </message>
</context>
<context>
    <name>ImagingTab</name>
    <message>
        <source>Trapping</source>
        <translation>Sobreposição de cores</translation>
    </message>
    <message>
        <source>Gloss mode</source>
        <translation>Modo brilhante</translation>
    </message>
    <message>
        <source>CIE optimization</source>
        <translation>Otimização CIE</translation>
    </message>
    <message>
        <source>Halftone screen</source>
        <translation>Retícula de meio-tom</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolução</translation>
    </message>
    <message>
        <source>Color reproduction</source>
        <translation>Reprodução de cores</translation>
    </message>
    <message>
        <source>Color conversion</source>
        <translation>Conversão de cores</translation>
    </message>
    <message>
        <source>VRS</source>
        <translation>VRS</translation>
    </message>
    <message>
        <source>Print grays with black toner</source>
        <translation>Imprimir cinzas com toner preto</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desativado</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ativado</translation>
    </message>
    <message>
        <source>Imaging</source>
        <translation>Imagem</translation>
    </message>
    <message>
        <source>Print quality</source>
        <translation>Qualidade de impressão</translation>
    </message>
    <message>
        <source>LeanPrint</source>
        <translation>LeanPrint</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Cor</translation>
    </message>
    <message>
        <source>Adjustment</source>
        <translation>Ajuste</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Definições...</translation>
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
        <translation>O ID da conta deve ter de 1 a 8 dígitos</translation>
    </message>
    <message>
        <source>Private print</source>
        <translation>Impressão confidencial</translation>
    </message>
    <message>
        <source>Custom box</source>
        <translation>Caixa personalizada</translation>
    </message>
    <message>
        <source>Value cannot contain the double quote (&quot;) character.</source>
        <translation>O valor não pode conter aspas duplas (&quot;).</translation>
    </message>
    <message>
        <source>Job accounting</source>
        <translation>Contabilização de trabalhos</translation>
    </message>
    <message>
        <source>Job accounting</source>
        <comment>caption</comment>
        <extracomment>Short, since it stands below a small picture.</extracomment>
        <translation>Contas</translation>
    </message>
    <message>
        <source>Select account ID</source>
        <translation>Selecionar ID da conta</translation>
    </message>
    <message>
        <source>Account ID List</source>
        <translation>Lista de IDs de conta</translation>
    </message>
    <message>
        <source>Use specific account ID</source>
        <translation>ID de conta específico</translation>
    </message>
    <message>
        <source>You must add an account ID to the list.</source>
        <translation>É necessário adicionar um ID de conta à lista.</translation>
    </message>
    <message>
        <source>Job e-mail notification</source>
        <translation>Notificação por e-mail</translation>
    </message>
    <message>
        <source>Job e-mail notification</source>
        <comment>caption</comment>
        <extracomment>Short, since it stands below a small picture.</extracomment>
        <translation>Aviso por e-mail</translation>
    </message>
    <message>
        <source>Enter a valid e-mail address.</source>
        <translation>Introduza um endereço de e-mail válido.</translation>
    </message>
    <message>
        <source>Enter the e-mail address in a valid format.
For example: %1</source>
        <translation>Introduza o endereço de e-mail em um formato válido.
Por exemplo: %1</translation>
    </message>
    <message>
        <source>E-mail address cannot contain any spaces.</source>
        <translation>O endereço de e-mail não pode conter espaços.</translation>
    </message>
    <message>
        <source>E-mail address should use only ASCII characters.</source>
        <translation>O endereço de e-mail deve conter apenas caracteres ASCII.</translation>
    </message>
    <message>
        <source>User Login</source>
        <translation>Início de sessão</translation>
    </message>
    <message>
        <source>User login</source>
        <extracomment>Short, since it stands below a small picture.</extracomment>
        <translation>Início de sessão</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nome:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Palavra-passe:</translation>
    </message>
    <message>
        <source>User name must be at least one character long.</source>
        <translation>O nome de utilizador deve ter pelo menos um carácter.</translation>
    </message>
    <message>
        <source>Job name</source>
        <translation>Nome do trabalho</translation>
    </message>
    <message>
        <source>Overwrite job name:</source>
        <translation>Substituir nome do trabalho:</translation>
    </message>
    <message>
        <source>Application defined</source>
        <translation>Definido pela aplicação</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizado</translation>
    </message>
    <message>
        <source>Use job name + date and time</source>
        <translation>Nome + data e hora</translation>
    </message>
    <message>
        <source>Replace existing file</source>
        <translation>Substituir ficheiro existente</translation>
    </message>
    <message>
        <source>The custom job name field requires a name within a 64 character limit.</source>
        <translation>O nome de trabalho personalizado deve ter de 1 a 64 caracteres.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>Job settings</source>
        <translation>Definições do trabalho</translation>
    </message>
    <message>
        <source>Job storage:</source>
        <extracomment>Short, since it stands below a small picture.</extracomment>
        <translation>Armazenar:</translation>
    </message>
    <message>
        <source>Access code</source>
        <translation>Código de acesso</translation>
    </message>
    <message>
        <source>Box number</source>
        <translation>Número da caixa</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Palavra-passe</translation>
    </message>
    <message>
        <source>Job storage</source>
        <translation>Armazenamento de trabalhos</translation>
    </message>
    <message>
        <source>Proof and hold</source>
        <translation>Prova e retenção</translation>
    </message>
    <message>
        <source>Access code must be 4 numbers in length.</source>
        <translation>O código de acesso deve ter 4 dígitos.</translation>
    </message>
    <message>
        <source>Enter a custom box number between 1 and 1000.</source>
        <translation>Introduza um número de caixa entre 1 e 1000.</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Trabalho</translation>
    </message>
    <message>
        <source>This Account ID already exists.</source>
        <translation>Este ID de conta já existe.</translation>
    </message>
    <message>
        <source>Account ID Error</source>
        <translation>Erro de ID da conta</translation>
    </message>
    <message>
        <source>Custom job name</source>
        <translation>Nome de trabalho personalizado</translation>
    </message>
</context>
<context>
    <name>LicenseDialog</name>
    <message>
        <source>Legal Notices</source>
        <translation>Avisos legais</translation>
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
        <translation>%1 e mais um</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 e mais %2</translation>
    </message>
</context>
<context>
    <name>OptionLabels</name>
    <message>
        <source>On</source>
        <translation>Ativado</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desativado</translation>
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
        <translation>Desativado</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ativado</translation>
    </message>
</context>
<context>
    <name>PasswordPrompt</name>
    <message>
        <source>Password Prompt</source>
        <translation>Pedido de palavra-passe</translation>
    </message>
    <message>
        <source>Please enter the root password.</source>
        <translation>Introduza a palavra-passe de root.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Could not authorize.</source>
        <translation>Não foi possível autorizar.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be handed to the program that changes the printer: only letters, digits and %2 can.</source>
        <translation>&quot;%1&quot; não pode ser passado ao programa que altera a impressora: só são possíveis letras, algarismos e %2.</translation>
    </message>
    <message>
        <source>The program %1 is missing. An administrator has to install it in a folder of root&apos;s search path, such as /usr/sbin.</source>
        <translation>Falta o programa %1. Um administrador tem de o instalar numa pasta do caminho de procura de root, por exemplo /usr/sbin.</translation>
    </message>
    <message>
        <source>sudo wants your own password.</source>
        <translation>O sudo pede a sua própria palavra-passe.</translation>
    </message>
    <message>
        <source>su wants the administrator&apos;s password (root).</source>
        <translation>O su pede a palavra-passe do administrador (root).</translation>
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
        <translation>Inativa</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Em pausa</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>A imprimir</translation>
    </message>
    <message>
        <source>Error: Printer does not exist or lpstat failed.</source>
        <translation>Erro: a impressora não existe ou o lpstat falhou.</translation>
    </message>
</context>
<context>
    <name>PrinterTab</name>
    <message>
        <source>Printer</source>
        <translation>Impressora</translation>
    </message>
    <message>
        <source>Installed options</source>
        <translation>Opções instaladas</translation>
    </message>
    <message>
        <source>Root access is required to make changes to installable options</source>
        <translation>É necessário acesso root para alterar as opções instaláveis</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Impressoras</translation>
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
        <translation>Selecione uma impressora.</translation>
    </message>
    <message>
        <source>Asking...</source>
        <translation>A consultar...</translation>
    </message>
    <message>
        <source>The print system (CUPS) does not answer, so no printer can be listed.</source>
        <translation>O sistema de impressão (CUPS) não responde; não é possível listar impressoras.</translation>
    </message>
    <message>
        <source>There is no Brixola printer yet. A print queue counts as one if it uses the PPD of a Brixola or NV-RATEX printer; a driverless one does not. Add the printer with that PPD in the print settings of your system or with lpadmin.</source>
        <translation>Ainda não há nenhuma impressora Brixola. É reconhecida como tal uma fila de impressão que use o PPD de uma impressora Brixola ou NV-RATEX; uma fila sem controlador não o é. Adicione a impressora com esse PPD nas definições de impressão do sistema ou com lpadmin.</translation>
    </message>
    <message>
        <source>Look again</source>
        <translation>Procurar de novo</translation>
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
        <translation>Perfis</translation>
    </message>
    <message>
        <source>Save Profiles</source>
        <translation>Guardar perfis</translation>
    </message>
    <message>
        <source>Edit Profile</source>
        <translation>Editar perfil</translation>
    </message>
    <message>
        <source>Detail</source>
        <translation>Detalhe</translation>
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
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Select profile:</source>
        <translation>Selecionar perfil:</translation>
    </message>
    <message>
        <source>Factory Default</source>
        <translation>Padrão de fábrica</translation>
    </message>
    <message>
        <source>Resolve the marked conflicts first.</source>
        <translation>Resolva primeiro os conflitos assinalados.</translation>
    </message>
    <message>
        <source>Select a profile of your own first.</source>
        <translation>Selecione primeiro um perfil seu.</translation>
    </message>
    <message>
        <source>The profile does not say which printer these values are of.</source>
        <translation>O perfil não indica a que impressora pertencem estes valores.</translation>
    </message>
    <message>
        <source>There is no PPD of %1 here to name these values. An administrator can add it with brixola-press-desk-ppds.</source>
        <translation>Não há aqui um PPD de %1 que dê nome a estes valores. Um administrador pode adicioná-lo com brixola-press-desk-ppds.</translation>
    </message>
</context>
<context>
    <name>ProfileEditDialog</name>
    <message>
        <source>Description:</source>
        <translation>Descrição:</translation>
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
        <translation>Nome:</translation>
    </message>
    <message>
        <source>Enter a name first.</source>
        <translation>Introduza primeiro um nome.</translation>
    </message>
    <message>
        <source>This name is reserved.</source>
        <translation>Este nome é reservado.</translation>
    </message>
    <message>
        <source>A name can&apos;t begin with a dot, nor contain / &quot; ` or ;</source>
        <translation>Um nome não pode começar por um ponto nem conter / &quot; ` ou ;</translation>
    </message>
    <message>
        <source>The name or the description is too long.</source>
        <translation>O nome ou a descrição é demasiado longo.</translation>
    </message>
    <message>
        <source>The profile could not be saved.</source>
        <translation>Não foi possível guardar o perfil.</translation>
    </message>
</context>
<context>
    <name>ProfileReader</name>
    <message>
        <source>Profiles</source>
        <translation>Perfis</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descrição</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>Básico</translation>
    </message>
    <message>
        <source>Print size</source>
        <translation>Tamanho de impressão</translation>
    </message>
    <message>
        <source>Media type</source>
        <translation>Tipo de suporte</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Origem</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destino</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Agrupamento</translation>
    </message>
    <message>
        <source>Duplex</source>
        <translation>Frente e verso</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Esquema</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Livreto</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Acabamento</translation>
    </message>
    <message>
        <source>Separation</source>
        <translation>Separação</translation>
    </message>
    <message>
        <source>Folding mode</source>
        <translation>Modo de dobra</translation>
    </message>
    <message>
        <source>Folding side</source>
        <translation>Lado da dobra</translation>
    </message>
    <message>
        <source>Folding direction</source>
        <translation>Direção da dobra</translation>
    </message>
    <message>
        <source>Folding method</source>
        <translation>Método de dobra</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Agrafamento</translation>
    </message>
    <message>
        <source>Staple method</source>
        <translation>Tipo de agrafamento</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Perfuração</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Girar</translation>
    </message>
    <message>
        <source>Imaging</source>
        <translation>Imagem</translation>
    </message>
    <message>
        <source>Trapping</source>
        <translation>Sobreposição de cores</translation>
    </message>
    <message>
        <source>Gloss mode</source>
        <translation>Modo brilhante</translation>
    </message>
    <message>
        <source>CIE optimization</source>
        <translation>Otimização CIE</translation>
    </message>
    <message>
        <source>Halftone screen</source>
        <translation>Retícula de meio-tom</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolução</translation>
    </message>
    <message>
        <source>LeanPrint</source>
        <translation>LeanPrint</translation>
    </message>
    <message>
        <source>HSL/Color Balance</source>
        <translation>HSL/Balanço de cores</translation>
    </message>
    <message>
        <source>Color adjustment</source>
        <translation>Ajuste de cores</translation>
    </message>
    <message>
        <source>Monochrome adjustment</source>
        <translation>Ajuste monocromático</translation>
    </message>
    <message>
        <source>Color mode</source>
        <translation>Modo de cor</translation>
    </message>
    <message>
        <source>Color reproduction</source>
        <translation>Reprodução de cores</translation>
    </message>
    <message>
        <source>Color conversion</source>
        <translation>Conversão de cores</translation>
    </message>
    <message>
        <source>VRS</source>
        <translation>VRS</translation>
    </message>
    <message>
        <source>Print grays with black toner</source>
        <translation>Cinzas com toner preto</translation>
    </message>
    <message>
        <source>Publishing</source>
        <translation>Publicação</translation>
    </message>
    <message>
        <source>Cover mode</source>
        <translation>Modo de capa</translation>
    </message>
    <message>
        <source>Page insert</source>
        <translation>Inserção de páginas</translation>
    </message>
    <message>
        <source>Transparency interleaving</source>
        <translation>Intercalar transparências</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Trabalho</translation>
    </message>
    <message>
        <source>Job settings</source>
        <translation>Definições do trabalho</translation>
    </message>
    <message>
        <source>Job accounting</source>
        <translation>Contabilização</translation>
    </message>
    <message>
        <source>Job name</source>
        <translation>Nome do trabalho</translation>
    </message>
    <message>
        <source>Job e-mail notification</source>
        <translation>Notificação por e-mail</translation>
    </message>
    <message>
        <source>User login</source>
        <translation>Início de sessão</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Marca de água</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ativado</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desativado</translation>
    </message>
    <message>
        <source>Private print</source>
        <translation>Impressão confidencial</translation>
    </message>
    <message>
        <source>Custom box</source>
        <translation>Caixa personalizada</translation>
    </message>
    <message>
        <source>Custom watermark</source>
        <translation>Marca de água personalizada</translation>
    </message>
    <message>
        <source>Black &amp; white</source>
        <translation>Preto e branco</translation>
    </message>
</context>
<context>
    <name>ProfileSaveDialog</name>
    <message>
        <source>Description</source>
        <translation>Descrição</translation>
    </message>
    <message>
        <source>Save Profile</source>
        <translation>Guardar perfil</translation>
    </message>
    <message>
        <source>The profile could not be added. A maximum profile count of 25 has been reached.</source>
        <translation>Não foi possível adicionar o perfil. O número máximo de 25 perfis foi atingido.</translation>
    </message>
    <message>
        <source>Select a printer.</source>
        <translation>Selecione uma impressora.</translation>
    </message>
    <message>
        <source>This name is reserved</source>
        <translation>Este nome é reservado</translation>
    </message>
    <message>
        <source>You must enter a profile name</source>
        <translation>É necessário introduzir um nome de perfil</translation>
    </message>
</context>
<context>
    <name>PublishingTab</name>
    <message>
        <source>Cover mode:</source>
        <translation>Modo de capa:</translation>
    </message>
    <message>
        <source>Cover mode:</source>
        <comment>caption</comment>
        <translation>Modo de capa:</translation>
    </message>
    <message>
        <source>Media for cover:</source>
        <translation>Papel da capa:</translation>
    </message>
    <message>
        <source>Page insert:</source>
        <translation>Inserção de páginas:</translation>
    </message>
    <message>
        <source>Page insert:</source>
        <comment>caption</comment>
        <translation>Inserir páginas:</translation>
    </message>
    <message>
        <source>Media for page:</source>
        <translation>Papel da inserção:</translation>
    </message>
    <message>
        <source>Transparency interleaving:</source>
        <translation>Separar transparências:</translation>
    </message>
    <message>
        <source>Transparency interleaving:</source>
        <comment>caption</comment>
        <translation>Separa-dores:</translation>
    </message>
    <message>
        <source>Media for backing:</source>
        <translation>Papel intercalar:</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>Frente</translation>
    </message>
    <message>
        <source>Front and back</source>
        <translation>Frente e verso</translation>
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
        <translation>Imprimir na frente</translation>
    </message>
    <message>
        <source>Print onto back</source>
        <translation>Imprimir no verso</translation>
    </message>
    <message>
        <source>Print onto backing</source>
        <translation>Imprimir no separador</translation>
    </message>
    <message>
        <source>Print onto:</source>
        <translation>Imprimir em:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Verso</translation>
    </message>
    <message>
        <source>Insert before pages:</source>
        <translation>Inserir antes das páginas:</translation>
    </message>
    <message>
        <source>Generic error message</source>
        <translation>Mensagem de erro genérica</translation>
    </message>
    <message>
        <source>Please type a page range.</source>
        <translation>Escreva um intervalo de páginas.</translation>
    </message>
    <message>
        <source>Please enter your specified pages.</source>
        <translation>Introduza as páginas pretendidas.</translation>
    </message>
    <message>
        <source>You can only insert up to 50 pages.</source>
        <translation>Só é possível inserir até 50 páginas.</translation>
    </message>
    <message>
        <source>You can only enter page numbers between 3 and 511</source>
        <translation>Só é possível introduzir números de página entre 3 e 511</translation>
    </message>
    <message>
        <source>You can only enter page numbers between 2 and 511</source>
        <translation>Só é possível introduzir números de página entre 2 e 511</translation>
    </message>
    <message>
        <source>Publishing</source>
        <translation>Publicação</translation>
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
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
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
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
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
        <translation>%1 ou %2</translation>
    </message>
    <message>
        <source>Always on with %1</source>
        <translation>Sempre ativado com %1</translation>
    </message>
    <message>
        <source>Always on without %1</source>
        <translation>Sempre ativado sem %1</translation>
    </message>
    <message>
        <source>Always on with %1 without %2</source>
        <translation>Sempre ativado com %1 sem %2</translation>
    </message>
    <message>
        <source>Not with %1</source>
        <translation>Não com %1</translation>
    </message>
    <message>
        <source>Not installed: %1 (see Printer)</source>
        <translation>Não instalado: %1 (ver Impressora)</translation>
    </message>
    <message>
        <source>Only with %1</source>
        <translation>Só com %1</translation>
    </message>
    <message>
        <source>Not with %1 without %2</source>
        <translation>Não com %1 sem %2</translation>
    </message>
    <message>
        <source>Decided by the policy server</source>
        <translation>Decidido pelo servidor de políticas</translation>
    </message>
    <message>
        <source>Only %1 is left.</source>
        <translation>Só resta &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>This printer does not offer it.</source>
        <translation>Esta impressora não oferece isto.</translation>
    </message>
    <message>
        <source>This printer offers nothing else.</source>
        <translation>Esta impressora não oferece outra opção.</translation>
    </message>
    <message>
        <source>Switch on %1 first.</source>
        <translation>Ative primeiro &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Choose %1 first.</source>
        <translation>Escolha primeiro &quot;%1&quot;.</translation>
    </message>
</context>
<context>
    <name>SheetView</name>
    <message>
        <source>Click to change: %1</source>
        <translation>Clique para alterar: %1</translation>
    </message>
</context>
<context>
    <name>Spoken</name>
    <message>
        <source>In conflict with other settings</source>
        <translation>Em conflito com outras definições</translation>
    </message>
</context>
<context>
    <name>TelemetryDialog</name>
    <message>
        <source>Data Collection</source>
        <translation>Recolha de dados</translation>
    </message>
    <message>
        <source>We ask you to help improve our application and/or products by providing usage information.</source>
        <translation>Pedimos a sua ajuda para melhorar a nossa aplicação e/ou os nossos produtos, fornecendo informações de utilização.</translation>
    </message>
    <message>
        <source>The application DOES NOT collect any personal data.</source>
        <translation>A aplicação NÃO recolhe quaisquer dados pessoais.</translation>
    </message>
    <message>
        <source>Regarding data collection, please read the PRIVACY POLICY as follows.</source>
        <translation>Sobre a recolha de dados, leia a POLÍTICA DE PRIVACIDADE que se segue.</translation>
    </message>
    <message>
        <source>Yes, I want to help improve your products</source>
        <translation>Sim, quero ajudar a melhorar os vossos produtos</translation>
    </message>
    <message>
        <source>No, I do not wish to take part in this feature</source>
        <translation>Não, não pretendo participar nesta funcionalidade</translation>
    </message>
</context>
<context>
    <name>UserLoginTab</name>
    <message>
        <source>User Login</source>
        <translation>Início de sessão</translation>
    </message>
    <message>
        <source>User login</source>
        <translation>Início de sessão</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Palavra-passe</translation>
    </message>
    <message>
        <source>Value cannot contain the double quote (&quot;) character.</source>
        <translation>O valor não pode conter aspas duplas (&quot;).</translation>
    </message>
    <message>
        <source>User name must be at least one character long.</source>
        <translation>O nome de utilizador deve ter pelo menos um carácter.</translation>
    </message>
</context>
<context>
    <name>WatermarkTab</name>
    <message>
        <source>Font</source>
        <translation>Tipo de letra</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Cor</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Ângulo</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Estilo</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Preenchimento</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Marca de água</translation>
    </message>
    <message>
        <source>Watermark/Stamp</source>
        <translation>Marca de água/Carimbo</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Repeat watermark</source>
        <translation>Repetir marca de água</translation>
    </message>
    <message>
        <source>Super watermark</source>
        <translation>Super marca de água</translation>
    </message>
    <message>
        <source>Custom watermark</source>
        <translation>Marca de água personalizada</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Novo</translation>
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
        <translation>Desativado</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizado</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Preto</translation>
    </message>
    <message>
        <source>Enter a text first.</source>
        <translation>Introduza primeiro um texto.</translation>
    </message>
    <message>
        <source>This text is in the list already.</source>
        <translation>Este texto já está na lista.</translation>
    </message>
    <message>
        <source>Choose a text of your own first.</source>
        <translation>Escolha primeiro um texto seu.</translation>
    </message>
    <message>
        <source>There is no such text of your own.</source>
        <translation>Este texto não é seu.</translation>
    </message>
    <message>
        <source>Watermark</source>
        <comment>caption</comment>
        <extracomment>Short, since it stands below a small picture. A hyphen may break the line.</extracomment>
        <translation>Marca de água</translation>
    </message>
    <message>
        <source>Super watermark</source>
        <comment>caption</comment>
        <extracomment>Short, since it stands below a small picture. A hyphen may break the line.</extracomment>
        <translation>Super marca de água</translation>
    </message>
</context>
<context>
    <name>adjustmentDialog</name>
    <message>
        <source>Master</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Vermelho</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Amarelo</translation>
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
        <translation>Azul</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturação</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Luminosidade</translation>
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
        <translation>HSL (matiz, saturação e luminosidade)</translation>
    </message>
    <message>
        <source>Color balance</source>
        <translation>Balanço de cores</translation>
    </message>
    <message>
        <source>Hue Adjustment</source>
        <translation>Ajuste de matiz</translation>
    </message>
    <message>
        <source>Color levels</source>
        <translation>Níveis de cor</translation>
    </message>
    <message>
        <source>Adjustment Settings</source>
        <translation>Definições de ajuste</translation>
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
        <translation>Brilho</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Adjustment Settings</source>
        <translation>Definições de ajuste</translation>
    </message>
</context>
</TS>
