<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
<context>
    <name>orvek::Availability</name>
    <message>
        <source>needs the %1, which this printer doesn&apos;t have</source>
        <translation>precisa de %1, que esta impressora não tem</translation>
    </message>
    <message>
        <source>not with %1</source>
        <translation>não com %1</translation>
    </message>
    <message>
        <source>%1 would be set to %2</source>
        <translation>%1 passaria a %2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>a booklet is printed on both sides</source>
        <translation>um livreto é impresso nos dois lados</translation>
    </message>
</context>
<context>
    <name>orvek::ChooserRow</name>
    <message>
        <source>P&amp;rinter:</source>
        <translation>Imp&amp;ressora:</translation>
    </message>
    <message>
        <source>Pr&amp;eset:</source>
        <translation>Pr&amp;edefinição:</translation>
    </message>
</context>
<context>
    <name>orvek::CopiesRow</name>
    <message>
        <source>Copies</source>
        <translation>Cópias</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Agrupar</translation>
    </message>
    <message>
        <source>Whole sets one after the other, not all copies of each page</source>
        <translation>Conjuntos completos um após o outro, não todas as cópias de cada página</translation>
    </message>
    <message>
        <source>From 1 to %1; %2 applies</source>
        <translation>De 1 a %1; vale %2</translation>
    </message>
    <message>
        <source>%1 still applies</source>
        <translation>%1 continua valendo</translation>
    </message>
</context>
<context>
    <name>orvek::CustomSizeRow</name>
    <message>
        <source>Paper width</source>
        <translation>Largura do papel</translation>
    </message>
    <message>
        <source>Paper height</source>
        <translation>Altura do papel</translation>
    </message>
</context>
<context>
    <name>orvek::CustomValue</name>
    <message>
        <source>%1 pt</source>
        <translation>%1 pt</translation>
    </message>
    <message>
        <source>%1: digits only</source>
        <translation>%1: somente dígitos</translation>
    </message>
    <message>
        <source>%1: %2 characters</source>
        <translation>%1: %2 caracteres</translation>
    </message>
    <message>
        <source>%1: %2 to %3 characters</source>
        <translation>%1: de %2 a %3 caracteres</translation>
    </message>
    <message>
        <source>%1: %2 to %3</source>
        <translation>%1: de %2 a %3</translation>
    </message>
</context>
<context>
    <name>orvek::CustomValueForm</name>
    <message>
        <source> pt</source>
        <translation> pt</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>de %1 a %2</translation>
    </message>
</context>
<context>
    <name>orvek::DocumentHeader</name>
    <message>
        <source>1 page</source>
        <translation>1 página</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%n página</numerusform>
            <numerusform>%n páginas</numerusform>
        </translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
    </message>
</context>
<context>
    <name>orvek::DocumentInfo</name>
    <message>
        <source>(stdin)</source>
        <translation>(entrada padrão)</translation>
    </message>
</context>
<context>
    <name>orvek::DocumentMenu</name>
    <message>
        <source>Add and remove documents</source>
        <translation>Adicionar e remover documentos</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>&amp;Adicionar arquivos…</translation>
    </message>
    <message>
        <source>&amp;Choose Other Files…</source>
        <translation>&amp;Escolher outros arquivos…</translation>
    </message>
    <message>
        <source>Remove %1. %2</source>
        <translation>Remover %1. %2</translation>
    </message>
</context>
<context>
    <name>orvek::DocumentPassword</name>
    <message>
        <source>That password does not open %1.</source>
        <translation>Essa senha não abre %1.</translation>
    </message>
    <message>
        <source>%1 is protected by a password.</source>
        <translation>%1 está protegido por uma senha.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
</context>
<context>
    <name>orvek::Failure</name>
    <message>
        <source>the print server asks for a password, and none was given</source>
        <translation>o servidor de impressão pede uma senha, e nenhuma foi informada</translation>
    </message>
    <message>
        <source>not found, so no booklet can be made; install this filter, too</source>
        <translation>não encontrado, portanto não é possível criar um livreto; instale também este filtro</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>é uma pasta</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>entrada padrão</translation>
    </message>
    <message>
        <source>is empty, so there is nothing to print</source>
        <translation>está vazio, portanto não há nada para imprimir</translation>
    </message>
    <message>
        <source>can be printed once only, and &quot;-&quot; is given more than once</source>
        <translation>só pode ser impressa uma vez, e “-” foi indicado mais de uma vez</translation>
    </message>
    <message>
        <source>is a folder, not a PPD file</source>
        <translation>é uma pasta, não um arquivo PPD</translation>
    </message>
    <message>
        <source>has no page %1: the number of its pages is %2</source>
        <translation>não tem a página %1: o número de páginas é %2</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>saída padrão</translation>
    </message>
    <message>
        <source>is the document itself, which would be lost; name another file</source>
        <translation>é o próprio documento, que se perderia; indique outro arquivo</translation>
    </message>
    <message>
        <source>not found; install the package &quot;cups&quot;</source>
        <translation>não encontrado; instale o pacote “cups”</translation>
    </message>
    <message>
        <source>the filter %1 stopped with status %2</source>
        <translation>o filtro %1 terminou com o status %2</translation>
    </message>
    <message>
        <source>the filter %1 crashed on signal %2</source>
        <translation>o filtro %1 falhou com o sinal %2</translation>
    </message>
    <message>
        <source>the filter %1</source>
        <translation>o filtro %1</translation>
    </message>
    <message>
        <source>the filter %1 has insecure permissions</source>
        <translation>o filtro %1 tem permissões inseguras</translation>
    </message>
    <message>
        <source>the filter %1 not available: %2</source>
        <translation>o filtro %1 não está disponível: %2</translation>
    </message>
    <message>
        <source>it needs a password; print it from a program that opens it with that password</source>
        <translation>precisa de uma senha; imprima-o em um programa que o abra com essa senha</translation>
    </message>
    <message>
        <source>whoever made it has encrypted it and does not allow that it is printed</source>
        <translation>quem o criou o criptografou e não permite a impressão</translation>
    </message>
    <message>
        <source>its type is unknown; print a PDF, PostScript, text or image file</source>
        <translation>seu tipo é desconhecido; imprima um arquivo PDF, PostScript, de texto ou de imagem</translation>
    </message>
    <message>
        <source>no filter prints the type %1</source>
        <translation>nenhum filtro imprime o tipo %1</translation>
    </message>
    <message>
        <source>the filters ended with status %1</source>
        <translation>os filtros terminaram com o status %1</translation>
    </message>
    <message>
        <source>the filters made no output of it</source>
        <translation>os filtros não produziram nada com ele</translation>
    </message>
    <message>
        <source>only a part of it was read before the job was cancelled</source>
        <translation>só uma parte foi lida antes de o trabalho ser cancelado</translation>
    </message>
    <message>
        <source>job</source>
        <translation>trabalho</translation>
    </message>
    <message>
        <source>is empty, so no job has been sent</source>
        <translation>está vazio, portanto nenhum trabalho foi enviado</translation>
    </message>
    <message>
        <source>%1; print it once more, and its sheets are made on this computer</source>
        <translation>%1; imprima de novo e as folhas serão preparadas neste computador</translation>
    </message>
    <message>
        <source>the print server wants it once more; print it from a file instead</source>
        <translation>o servidor de impressão a pede de novo; imprima a partir de um arquivo</translation>
    </message>
    <message>
        <source>the server&apos;s driver can&apos;t make booklets</source>
        <translation>o driver do servidor não consegue criar livretos</translation>
    </message>
    <message>
        <source>the server lacks the printer&apos;s driver and stops every job</source>
        <translation>falta ao servidor o driver da impressora, e ele interrompe todos os trabalhos</translation>
    </message>
    <message>
        <source>&quot;PluginInterface&quot; must be a number</source>
        <translation>“PluginInterface” deve ser um número</translation>
    </message>
    <message>
        <source>made for plug-in interface %1, this program has %2: install the plug-in that belongs to it</source>
        <translation>feito para a interface de plug-ins %1, este programa tem a %2: instale o plug-in correspondente</translation>
    </message>
    <message>
        <source>&quot;Executable&quot; must name the plug-in&apos;s code file</source>
        <translation>“Executable” deve indicar o arquivo de código do plug-in</translation>
    </message>
    <message>
        <source>&quot;Executable&quot; must be a file inside the bundle, not &quot;%1&quot;</source>
        <translation>“Executable” deve ser um arquivo dentro do pacote, não “%1”</translation>
    </message>
    <message>
        <source>the plug-in&apos;s code is missing</source>
        <translation>falta o código do plug-in</translation>
    </message>
    <message>
        <source>no such plug-in bundle (a folder)</source>
        <translation>não existe esse pacote de plug-in (uma pasta)</translation>
    </message>
    <message>
        <source>&quot;PrincipalClass&quot; must name the plug-in&apos;s class</source>
        <translation>“PrincipalClass” deve indicar a classe do plug-in</translation>
    </message>
    <message>
        <source>the plug-in&apos;s code can&apos;t be loaded (%1)</source>
        <translation>não é possível carregar o código do plug-in (%1)</translation>
    </message>
    <message>
        <source>has no factory for the class &quot;%1&quot;</source>
        <translation>não tem fábrica para a classe “%1”</translation>
    </message>
    <message>
        <source>the plug-in&apos;s factory refused its bundle</source>
        <translation>a fábrica do plug-in recusou o pacote</translation>
    </message>
    <message>
        <source>belongs to another user, whose code would run as yours; a plug-in must be yours or the administrator&apos;s</source>
        <translation>pertence a outro usuário, cujo código seria executado como seu; um plug-in deve ser seu ou do administrador</translation>
    </message>
    <message>
        <source>can be written by others, whose code would run as yours; take that right from them (chmod go-w)</source>
        <translation>pode ser gravado por outros, cujo código seria executado como seu; retire deles esse direito (chmod go-w)</translation>
    </message>
    <message>
        <source>not a valid PPD file (%1)</source>
        <translation>não é um arquivo PPD válido (%1)</translation>
    </message>
    <message>
        <source>not a preset: %1</source>
        <translation>não é uma predefinição: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be text</source>
        <translation>“%1” deve ser um texto</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be an object</source>
        <translation>“%1” deve ser um objeto</translation>
    </message>
    <message>
        <source>option &quot;%1&quot; must have a choice as text</source>
        <translation>a opção “%1” deve ter uma escolha em texto</translation>
    </message>
    <message>
        <source>not a preset: one JSON object expected</source>
        <translation>não é uma predefinição: espera-se um objeto JSON</translation>
    </message>
    <message>
        <source>preset name</source>
        <translation>nome da predefinição</translation>
    </message>
    <message>
        <source>is empty; give the preset a name</source>
        <translation>está vazio; dê um nome à predefinição</translation>
    </message>
    <message>
        <source>can&apos;t hold line breaks or control characters</source>
        <translation>não pode conter quebras de linha nem caracteres de controle</translation>
    </message>
    <message>
        <source>preset &quot;%1&quot;</source>
        <translation>predefinição “%1”</translation>
    </message>
    <message>
        <source>can&apos;t be made</source>
        <translation>não pode ser criado</translation>
    </message>
    <message>
        <source>the present one is damaged and left as it is (%1); delete it first</source>
        <translation>a atual está danificada e fica como está (%1); exclua-a primeiro</translation>
    </message>
    <message>
        <source>holds a preset of another name: &quot;%1&quot;</source>
        <translation>contém uma predefinição com outro nome: “%1”</translation>
    </message>
    <message>
        <source>there is one of that name already</source>
        <translation>já existe uma com esse nome</translation>
    </message>
    <message>
        <source>the print server asks for a password</source>
        <translation>o servidor de impressão pede uma senha</translation>
    </message>
    <message>
        <source>the print server did not accept the password of user &quot;%1&quot;, given %2 times</source>
        <translation>o servidor de impressão não aceitou a senha do usuário “%1”, informada %2 vezes</translation>
    </message>
    <message>
        <source>the print server sent an answer that cannot be read</source>
        <translation>o servidor de impressão enviou uma resposta que não pode ser lida</translation>
    </message>
    <message>
        <source>the print server stopped answering; try again once it is up</source>
        <translation>o servidor de impressão parou de responder; tente de novo quando ele estiver ativo</translation>
    </message>
    <message>
        <source>the print server did not come to an end of its answer; try again later, or ask whoever runs it</source>
        <translation>o servidor de impressão não concluiu a resposta; tente mais tarde ou pergunte a quem o administra</translation>
    </message>
    <message>
        <source>names a printer that does not exist: &quot;%1&quot;</source>
        <translation>indica uma impressora que não existe: “%1”</translation>
    </message>
    <message>
        <source>the print server does not give its printer description (%1)</source>
        <translation>o servidor de impressão não fornece a descrição da impressora (%1)</translation>
    </message>
    <message>
        <source>no print server has this name</source>
        <translation>nenhum servidor de impressão tem esse nome</translation>
    </message>
    <message>
        <source>no print server answers there</source>
        <translation>nenhum servidor de impressão responde nesse endereço</translation>
    </message>
    <message>
        <source>no print server answers there (%1)</source>
        <translation>nenhum servidor de impressão responde nesse endereço (%1)</translation>
    </message>
    <message>
        <source>the connection to the print server broke</source>
        <translation>a conexão com o servidor de impressão caiu</translation>
    </message>
    <message>
        <source>the connection to the print server broke (%1)</source>
        <translation>a conexão com o servidor de impressão caiu (%1)</translation>
    </message>
    <message>
        <source>the print server has no such queue or job</source>
        <translation>o servidor de impressão não tem essa fila nem esse trabalho</translation>
    </message>
    <message>
        <source>the print server does not allow it for user &quot;%1&quot;</source>
        <translation>o servidor de impressão não permite isso ao usuário “%1”</translation>
    </message>
    <message>
        <source>the queue takes no jobs at present</source>
        <translation>a fila não aceita trabalhos no momento</translation>
    </message>
    <message>
        <source>the print server gave no answer</source>
        <translation>o servidor de impressão não respondeu</translation>
    </message>
    <message>
        <source>not a page range; write for example 1-3,7</source>
        <translation>não é um intervalo de páginas; escreva por exemplo 1-3,7</translation>
    </message>
    <message>
        <source>not a ticket: JSON expected (%1)</source>
        <translation>não é um tíquete: espera-se JSON (%1)</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>verdadeiro ou falso</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>uma lista</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>um objeto</translation>
    </message>
    <message>
        <source>a number with a fraction</source>
        <translation>um número com casas decimais</translation>
    </message>
    <message>
        <source>not a ticket: one JSON object expected</source>
        <translation>não é um tíquete: espera-se um objeto JSON</translation>
    </message>
    <message>
        <source>key &quot;%1&quot; must be text or an integer, not %2</source>
        <translation>a chave “%1” deve ser um texto ou um número inteiro, não %2</translation>
    </message>
    <message>
        <source>is larger than 1 MB, as no ticket and no preset is</source>
        <translation>tem mais de 1 MB, mais do que qualquer tíquete ou predefinição</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>cancelado</translation>
    </message>
    <message>
        <source>Bad file descriptor</source>
        <translation>o descritor de arquivo não é válido</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <translation>pipe interrompido</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>conexão recusada</translation>
    </message>
    <message>
        <source>Connection reset by peer</source>
        <translation>a outra ponta encerrou a conexão</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>tempo limite da conexão esgotado</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>o arquivo é grande demais</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>erro de entrada/saída</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>é uma pasta</translation>
    </message>
    <message>
        <source>Network is unreachable</source>
        <translation>a rede está inacessível</translation>
    </message>
    <message>
        <source>No route to host</source>
        <translation>não há rota até o computador</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>não há espaço livre no dispositivo</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>arquivo ou pasta não encontrado</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>não é uma pasta</translation>
    </message>
    <message>
        <source>Operation now in progress</source>
        <translation>a operação ainda está em andamento</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>a operação não é permitida</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>permissão negada</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>o sistema de arquivos é somente leitura</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>arquivos abertos demais</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>is damaged beyond repair</source>
        <translation>está danificado de forma irreparável</translation>
    </message>
    <message>
        <source>has no pages, so there is nothing to print</source>
        <translation>não tem páginas, portanto não há nada para imprimir</translation>
    </message>
    <message>
        <source>a copy that the filters can open can&apos;t be written; make room for temporary files</source>
        <translation>não é possível gravar uma cópia que os filtros possam abrir; libere espaço para arquivos temporários</translation>
    </message>
    <message>
        <source>the sheets of several documents can&apos;t be put into one PDF; print them one by one</source>
        <translation>as folhas de vários documentos não podem ser reunidas em um só PDF; imprima-os um por um</translation>
    </message>
    <message>
        <source>no such printer on %1; choose another one</source>
        <translation>não existe essa impressora em %1; escolha outra</translation>
    </message>
    <message>
        <source>there is no default printer; choose one</source>
        <translation>não há impressora padrão; escolha uma</translation>
    </message>
    <message>
        <source>there is none of that name; choose another one</source>
        <translation>não há nenhuma com esse nome; escolha outra</translation>
    </message>
    <message>
        <source>has no side that %1 asks for: the number of its sides is %2</source>
        <translation>não tem nenhuma face pedida por %1: o número de faces é %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a meaning of its own in the list; choose another</source>
        <translation>“%1” tem um significado próprio na lista; escolha outro</translation>
    </message>
</context>
<context>
    <name>orvek::GeneralPage</name>
    <message>
        <source>Last page first</source>
        <translation>Última página primeiro</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>Tamanho do papel</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>Origem do papel</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>Tipo de papel</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientação</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Páginas por folha</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Cor</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualidade</translation>
    </message>
</context>
<context>
    <name>orvek::History</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
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
        <source>As the job</source>
        <translation>Como o trabalho</translation>
    </message>
    <message>
        <source>%1 pt</source>
        <translation>%1 pt</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Livreto</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>Da direita para a esquerda</translation>
    </message>
    <message>
        <source>Page borders</source>
        <translation>Bordas das páginas</translation>
    </message>
    <message>
        <source>Gutter</source>
        <translation>Medianiz</translation>
    </message>
    <message>
        <source>Creep</source>
        <translation>Compensação</translation>
    </message>
    <message>
        <source>Target paper size</source>
        <translation>Papel de destino</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todas</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Cópias</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Agrupar</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>Última página primeiro</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientação</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Páginas por folha</translation>
    </message>
    <message>
        <source>Other settings</source>
        <translation>Outras configurações</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>mais %n</numerusform>
            <numerusform>mais %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orvek::HistoryButtons</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Desfazer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Refazer</translation>
    </message>
</context>
<context>
    <name>orvek::JobBar</name>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>&amp;Print to File…</source>
        <translation>&amp;Imprimir em arquivo…</translation>
    </message>
    <message>
        <source>Stops the job</source>
        <translation>Interrompe o trabalho</translation>
    </message>
    <message>
        <source>Closes the window without printing</source>
        <translation>Fecha a janela sem imprimir</translation>
    </message>
    <message>
        <source>Stopping the job</source>
        <translation>Interrompendo o trabalho</translation>
    </message>
</context>
<context>
    <name>orvek::JobDocuments</name>
    <message>
        <source>Choose a file, or drop one here</source>
        <translation>Escolha um arquivo ou solte-o aqui</translation>
    </message>
    <message>
        <source>Opening…</source>
        <translation>Abrindo…</translation>
    </message>
    <message>
        <source>Protected by a password</source>
        <translation>Protegido por uma senha</translation>
    </message>
    <message>
        <source>Can&apos;t be printed</source>
        <translation>Não pode ser impresso</translation>
    </message>
    <message>
        <source>There is no document yet</source>
        <translation>Ainda não há documento</translation>
    </message>
    <message>
        <source>%1 needs its password</source>
        <translation>%1 precisa da senha</translation>
    </message>
    <message>
        <source>%1 is damaged beyond repair</source>
        <translation>%1 está danificado de forma irreparável</translation>
    </message>
    <message>
        <source>%1 has no pages</source>
        <translation>%1 não tem páginas</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 está vazio</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read</source>
        <translation>%1 não pode ser lido</translation>
    </message>
    <message>
        <source>Enter Password…</source>
        <translation>Digitar senha…</translation>
    </message>
    <message>
        <source>Choose File…</source>
        <translation>Escolher arquivo…</translation>
    </message>
    <message>
        <source>Choose Documents</source>
        <translation>Escolher documentos</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 e mais %2</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
    </message>
    <message>
        <source>Add Documents</source>
        <translation>Adicionar documentos</translation>
    </message>
</context>
<context>
    <name>orvek::JobNotice</name>
    <message>
        <source>Job %1 on %2 was cancelled</source>
        <translation>O trabalho %1 em %2 foi cancelado</translation>
    </message>
    <message>
        <source>Sent to %1, job %2</source>
        <translation>Enviado para %1, trabalho %2</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>Cancelar trabalho</translation>
    </message>
</context>
<context>
    <name>orvek::JobPreview</name>
    <message>
        <source>Preview</source>
        <translation>Visualização</translation>
    </message>
    <message>
        <source>Previous side</source>
        <translation>Lado anterior</translation>
    </message>
    <message>
        <source>Next side</source>
        <translation>Próximo lado</translation>
    </message>
    <message>
        <source>Several sheets at once (Ctrl and wheel: zoom)</source>
        <translation>Várias folhas ao mesmo tempo (Ctrl e roda: zoom)</translation>
    </message>
    <message>
        <source>Several sheets at once</source>
        <translation>Várias folhas ao mesmo tempo</translation>
    </message>
    <message>
        <source>No page of the document is printed.</source>
        <translation>Nenhuma página do documento é impressa.</translation>
    </message>
    <message>
        <source>Reading the document…</source>
        <translation>Lendo o documento…</translation>
    </message>
    <message>
        <source>The document&apos;s pages are not known: a sample</source>
        <translation>As páginas do documento não são conhecidas: uma amostra</translation>
    </message>
    <message>
        <source>%1 × 1 sheet</source>
        <translation>%1 × 1 folha</translation>
    </message>
    <message numerus="yes">
        <source>%1 × %n sheets</source>
        <translation>
            <numerusform>%1 × %n folha</numerusform>
            <numerusform>%1 × %n folhas</numerusform>
        </translation>
    </message>
    <message>
        <source>1 sheet</source>
        <translation>1 folha</translation>
    </message>
    <message numerus="yes">
        <source>%n sheets</source>
        <translation>
            <numerusform>%n folha</numerusform>
            <numerusform>%n folhas</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no document yet: a sample</source>
        <translation>Ainda não há documento: uma amostra</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Frente e verso</translation>
    </message>
</context>
<context>
    <name>orvek::JobStrip</name>
    <message>
        <source>Copies</source>
        <translation>Cópias</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Frente e verso</translation>
    </message>
</context>
<context>
    <name>orvek::JobWarnings</name>
    <message>
        <source>%1 with copies that are not collated: equal pages would be stapled together</source>
        <translation>%1 com cópias não agrupadas: páginas iguais seriam grampeadas juntas</translation>
    </message>
    <message>
        <source>A booklet of %1 sheets is more than the printer folds at once: at most %2</source>
        <translation>Um livreto de %1 folhas é mais do que a impressora dobra de uma vez: no máximo %2</translation>
    </message>
    <message>
        <source>A booklet is printed on both sides, which can&apos;t be combined with %1</source>
        <translation>Um livreto é impresso nos dois lados, o que não pode ser combinado com %1</translation>
    </message>
    <message>
        <source>The document has no page %1: the number of its pages is %2</source>
        <translation>O documento não tem a página %1: o número de páginas é %2</translation>
    </message>
    <message>
        <source>None of the sides that are asked for exists: the number of sides is %1</source>
        <translation>Nenhuma das faces pedidas existe: o número de faces é %1</translation>
    </message>
</context>
<context>
    <name>orvek::LabelText</name>
    <message>
        <source>%1:</source>
        <comment>a label before its field</comment>
        <translation>%1:</translation>
    </message>
</context>
<context>
    <name>orvek::NoticeBar</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Desfazer</translation>
    </message>
    <message>
        <source>Close the notice</source>
        <translation>Fechar o aviso</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problema</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informação</translation>
    </message>
    <message>
        <source>Earlier notice</source>
        <translation>Aviso anterior</translation>
    </message>
    <message>
        <source>Later notice</source>
        <translation>Próximo aviso</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Undo %n steps</source>
        <translation>
            <numerusform>&amp;Desfazer %n passo</numerusform>
            <numerusform>&amp;Desfazer %n passos</numerusform>
        </translation>
    </message>
    <message>
        <source>Takes back the choice with all that it changed, and what came after it</source>
        <translation>Desfaz a escolha com tudo o que ela alterou e o que veio depois</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>a notice&apos;s place</comment>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Tentar novamente</translation>
    </message>
</context>
<context>
    <name>orvek::OptionsModel</name>
    <message>
        <source>Changed; by itself: %1</source>
        <translation>Alterada; por padrão: %1</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>Opção</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>Escolha</translation>
    </message>
</context>
<context>
    <name>orvek::OptionsPage</name>
    <message>
        <source>Only changed</source>
        <translation>Somente alteradas</translation>
    </message>
    <message>
        <source>Set Back</source>
        <translation>Redefinir</translation>
    </message>
    <message>
        <source>Set All Back</source>
        <translation>Redefinir tudo</translation>
    </message>
    <message>
        <source>Search options</source>
        <translation>Pesquisar opções</translation>
    </message>
    <message>
        <source>1 option changed</source>
        <translation>1 opção alterada</translation>
    </message>
    <message numerus="yes">
        <source>%n options changed</source>
        <translation>
            <numerusform>%n opção alterada</numerusform>
            <numerusform>%n opções alteradas</numerusform>
        </translation>
    </message>
    <message>
        <source>No option changed</source>
        <translation>Nenhuma opção alterada</translation>
    </message>
    <message>
        <source>No option found</source>
        <translation>Nenhuma opção encontrada</translation>
    </message>
    <message>
        <source>This printer has no more options</source>
        <translation>Esta impressora não tem mais opções</translation>
    </message>
</context>
<context>
    <name>orvek::OptionsView</name>
    <message>
        <source>Options</source>
        <translation>Opções</translation>
    </message>
    <message>
        <source>Return opens an option&apos;s choices or switches it, Delete sets it back</source>
        <translation>Enter abre as escolhas de uma opção ou a alterna, Delete a redefine</translation>
    </message>
</context>
<context>
    <name>orvek::OrientationText</name>
    <message>
        <source>Portrait</source>
        <translation>Retrato</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Paisagem</translation>
    </message>
    <message>
        <source>Portrait, upside down</source>
        <translation>Retrato, invertido</translation>
    </message>
    <message>
        <source>Landscape, upside down</source>
        <translation>Paisagem, invertida</translation>
    </message>
    <message>
        <source>As in the document</source>
        <translation>Como no documento</translation>
    </message>
</context>
<context>
    <name>orvek::PagesRow</name>
    <message>
        <source>All</source>
        <translation>Todas</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Intervalo</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Todas as páginas</translation>
    </message>
    <message>
        <source>A range of pages</source>
        <translation>Um intervalo de páginas</translation>
    </message>
    <message>
        <source>Page range</source>
        <translation>Intervalo de páginas</translation>
    </message>
    <message>
        <source>e.g. 1-3, 7</source>
        <translation>ex.: 1-3, 7</translation>
    </message>
    <message>
        <source>Write which pages to print, for example 1-3, 7</source>
        <translation>Escreva as páginas a imprimir, por exemplo 1-3, 7</translation>
    </message>
</context>
<context>
    <name>orvek::PasswordDialog</name>
    <message>
        <source>The print server %1 asks for a name and a password.</source>
        <translation>O servidor de impressão %1 pede um nome e uma senha.</translation>
    </message>
    <message>
        <source>The print server did not accept that name and password.</source>
        <translation>O servidor de impressão não aceitou esse nome e essa senha.</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nome:</translation>
    </message>
    <message>
        <source>&amp;Sign In</source>
        <translation>&amp;Entrar</translation>
    </message>
</context>
<context>
    <name>orvek::PasswordForm</name>
    <message>
        <source>Password</source>
        <translation>Senha</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Senha:</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>orvek::PresetChooser</name>
    <message>
        <source>Preset</source>
        <translation>Predefinição</translation>
    </message>
    <message>
        <source>Save and manage presets</source>
        <translation>Salvar e gerenciar predefinições</translation>
    </message>
    <message>
        <source>&amp;Save As…</source>
        <translation>&amp;Salvar como…</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>&amp;Renomear…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>E&amp;xcluir</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhuma</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>Última usada</translation>
    </message>
    <message>
        <source>Name of the preset:</source>
        <translation>Nome da predefinição:</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>Salvar predefinição</translation>
    </message>
    <message>
        <source>There is a preset “%1” already. Replace it?</source>
        <translation>Já existe uma predefinição “%1”. Substituí-la?</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>Renomear predefinição</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>Excluir predefinição</translation>
    </message>
    <message>
        <source>Delete the preset “%1”?</source>
        <translation>Excluir a predefinição “%1”?</translation>
    </message>
    <message>
        <source>Remember &amp;Last Settings</source>
        <translation>&amp;Lembrar as últimas configurações</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (alterada)</translation>
    </message>
</context>
<context>
    <name>orvek::PresetFit</name>
    <message>
        <source>this printer has no option &quot;%1&quot;</source>
        <translation>esta impressora não tem a opção “%1”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is installed equipment, which a preset does not change</source>
        <translation>“%1” é equipamento instalado, que uma predefinição não altera</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of this printer has no choice &quot;%2&quot;</source>
        <translation>“%1” desta impressora não tem a escolha “%2”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of this printer takes %2</source>
        <translation>“%1” desta impressora aceita %2</translation>
    </message>
    <message>
        <source>this printer makes no booklets</source>
        <translation>esta impressora não cria livretos</translation>
    </message>
</context>
<context>
    <name>orvek::PrintDialog</name>
    <message>
        <source>the default printer</source>
        <translation>a impressora padrão</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Print all the same?</source>
        <translation>Imprimir mesmo assim?</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>&amp;Imprimir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>The sheets can be made on this computer and sent finished.</source>
        <translation>As folhas podem ser preparadas neste computador e enviadas prontas.</translation>
    </message>
    <message>
        <source>Banner pages would be left out.</source>
        <translation>As páginas de separação seriam omitidas.</translation>
    </message>
    <message>
        <source>&amp;Impose here and print</source>
        <translation>&amp;Impor aqui e imprimir</translation>
    </message>
    <message>
        <source>&amp;Prepare here and print</source>
        <translation>&amp;Preparar aqui e imprimir</translation>
    </message>
    <message>
        <source>The job was cancelled.</source>
        <translation>O trabalho foi cancelado.</translation>
    </message>
    <message>
        <source>It can still be printed into a file: choose File as the printer.</source>
        <translation>Ainda é possível imprimir em arquivo: escolha Arquivo como impressora.</translation>
    </message>
    <message>
        <source>Asking %1…</source>
        <translation>Consultando %1…</translation>
    </message>
    <message>
        <source>Open a Printer Description</source>
        <translation>Abrir uma descrição de impressora</translation>
    </message>
    <message>
        <source>Printer descriptions (*.ppd *.ppd.gz)</source>
        <translation>Descrições de impressora (*.ppd *.ppd.gz)</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>Lendo %1…</translation>
    </message>
    <message>
        <source>Not everything fits this printer:</source>
        <translation>Nem tudo é compatível com esta impressora:</translation>
    </message>
    <message>
        <source>Not all of the preset fits this printer:</source>
        <translation>Nem toda a predefinição é compatível com esta impressora:</translation>
    </message>
    <message>
        <source>No printer is chosen</source>
        <translation>Nenhuma impressora escolhida</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>Nenhum documento</translation>
    </message>
    <message>
        <source>Printed into %1</source>
        <translation>Impresso em %1</translation>
    </message>
    <message>
        <source>Sent to %1, job %2</source>
        <translation>Enviado para %1, trabalho %2</translation>
    </message>
    <message>
        <source>The printer is no longer there</source>
        <translation>A impressora não existe mais</translation>
    </message>
    <message>
        <source>%1 is no longer on the print server. Choose another printer.</source>
        <translation>%1 não está mais no servidor de impressão. Escolha outra impressora.</translation>
    </message>
</context>
<context>
    <name>orvek::PrinterChooser</name>
    <message>
        <source>%1 (default)</source>
        <translation>%1 (padrão)</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Impressora</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>File (%1)</source>
        <translation>Arquivo (%1)</translation>
    </message>
    <message>
        <source>File (needs a printer description)</source>
        <translation>Arquivo (precisa de uma descrição de impressora)</translation>
    </message>
    <message>
        <source>No printers: %1</source>
        <translation>Nenhuma impressora: %1</translation>
    </message>
    <message>
        <source>Open Printer Description…</source>
        <translation>Abrir descrição de impressora…</translation>
    </message>
    <message>
        <source>Prints into a file</source>
        <translation>Imprime em um arquivo</translation>
    </message>
    <message>
        <source>Choose a printer, or open a printer description</source>
        <translation>Escolha uma impressora ou abra uma descrição de impressora</translation>
    </message>
    <message>
        <source>Asking for the printers…</source>
        <translation>Consultando as impressoras…</translation>
    </message>
    <message>
        <source>No longer on the print server</source>
        <translation>Não está mais no servidor de impressão</translation>
    </message>
</context>
<context>
    <name>orvek::PrinterModel</name>
    <message>
        <source>used lately</source>
        <translation>usada recentemente</translation>
    </message>
</context>
<context>
    <name>orvek::PrinterPopup</name>
    <message>
        <source>No printer matches</source>
        <translation>Nenhuma impressora corresponde</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Tentar novamente</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>Impressoras</translation>
    </message>
    <message>
        <source>Search for name, description or location</source>
        <translation>Pesquisar nome, descrição ou local</translation>
    </message>
</context>
<context>
    <name>orvek::ProgressText</name>
    <message>
        <source>Printing…</source>
        <translation>Imprimindo…</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>página %1</translation>
    </message>
    <message>
        <source>Printing: %1</source>
        <translation>Imprimindo: %1</translation>
    </message>
    <message>
        <source>Printing document %1 of %2: %3</source>
        <translation>Imprimindo o documento %1 de %2: %3</translation>
    </message>
</context>
<context>
    <name>orvek::Queue</name>
    <message>
        <source>Connecting to the printer</source>
        <translation>Conectando à impressora</translation>
    </message>
    <message>
        <source>A cover is open</source>
        <translation>Uma tampa está aberta</translation>
    </message>
    <message>
        <source>The printer&apos;s filter can be changed by others and is not run</source>
        <translation>O filtro da impressora pode ser alterado por outros e não é executado</translation>
    </message>
    <message>
        <source>The printer&apos;s filter is missing</source>
        <translation>Falta o filtro da impressora</translation>
    </message>
    <message>
        <source>A door is open</source>
        <translation>Uma porta está aberta</translation>
    </message>
    <message>
        <source>A paper tray is missing</source>
        <translation>Falta uma bandeja de papel</translation>
    </message>
    <message>
        <source>Toner or ink is empty</source>
        <translation>O toner ou a tinta acabou</translation>
    </message>
    <message>
        <source>Toner or ink is low</source>
        <translation>O toner ou a tinta está acabando</translation>
    </message>
    <message>
        <source>The waste container is almost full</source>
        <translation>O recipiente de resíduos está quase cheio</translation>
    </message>
    <message>
        <source>The waste container is full</source>
        <translation>O recipiente de resíduos está cheio</translation>
    </message>
    <message>
        <source>Out of paper</source>
        <translation>Sem papel</translation>
    </message>
    <message>
        <source>Paper jam</source>
        <translation>Papel atolado</translation>
    </message>
    <message>
        <source>Paper is low</source>
        <translation>Pouco papel</translation>
    </message>
    <message>
        <source>Paper has to be put in</source>
        <translation>É preciso colocar papel</translation>
    </message>
    <message>
        <source>Stopping</source>
        <translation>Parando</translation>
    </message>
    <message>
        <source>The printer is offline</source>
        <translation>A impressora está off-line</translation>
    </message>
    <message>
        <source>The printer reports a problem</source>
        <translation>A impressora informa um problema</translation>
    </message>
    <message>
        <source>The output tray is almost full</source>
        <translation>A bandeja de saída está quase cheia</translation>
    </message>
    <message>
        <source>The output tray is full</source>
        <translation>A bandeja de saída está cheia</translation>
    </message>
    <message>
        <source>The output tray is missing</source>
        <translation>Falta a bandeja de saída</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Em pausa</translation>
    </message>
    <message>
        <source>The printer is switched off</source>
        <translation>A impressora está desligada</translation>
    </message>
    <message>
        <source>The printer&apos;s memory is full</source>
        <translation>A memória da impressora está cheia</translation>
    </message>
    <message>
        <source>Part of the printer is stopped</source>
        <translation>Parte da impressora está parada</translation>
    </message>
    <message>
        <source>The printer does not answer</source>
        <translation>A impressora não responde</translation>
    </message>
    <message>
        <source>Toner is empty</source>
        <translation>O toner acabou</translation>
    </message>
    <message>
        <source>Toner is low</source>
        <translation>O toner está acabando</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Pronta</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Imprimindo</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Parada</translation>
    </message>
    <message>
        <source>State unknown</source>
        <translation>Estado desconhecido</translation>
    </message>
    <message>
        <source>, takes no jobs</source>
        <translation>, não aceita trabalhos</translation>
    </message>
</context>
<context>
    <name>orvek::SavePlace</name>
    <message>
        <source>Printed</source>
        <translation>Impresso</translation>
    </message>
    <message>
        <source>Print into a File</source>
        <translation>Imprimir em arquivo</translation>
    </message>
    <message>
        <source>PDF of the sheets (*.pdf)</source>
        <translation>PDF das folhas (*.pdf)</translation>
    </message>
    <message>
        <source>As the printer takes it (*.ps *.prn)</source>
        <translation>Na linguagem da impressora (*.ps *.prn)</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Printed into %1.</source>
        <translation>Impresso em %1.</translation>
    </message>
    <message>
        <source>&amp;Show in Folder</source>
        <translation>&amp;Mostrar na pasta</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>orvek::SessionJob</name>
    <message>
        <source>Booklet was set to Off: it can&apos;t be combined with several pages per sheet</source>
        <translation>Livreto foi definido como “Desativado”: não pode ser combinado com várias páginas por folha</translation>
    </message>
</context>
<context>
    <name>orvek::SessionView</name>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumo</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>Mais opções</translation>
    </message>
</context>
<context>
    <name>orvek::SheetsView</name>
    <message>
        <source>%1, back</source>
        <translation>%1, verso</translation>
    </message>
</context>
<context>
    <name>orvek::SpokenSide</name>
    <message>
        <source>page %1</source>
        <translation>página %1</translation>
    </message>
    <message>
        <source>page %1 left</source>
        <translation>página %1 à esquerda</translation>
    </message>
    <message>
        <source>page %1 right</source>
        <translation>página %1 à direita</translation>
    </message>
    <message>
        <source>blank</source>
        <translation>em branco</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>Folha %1 de %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation>Folha %1 de %2, frente</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation>Folha %1 de %2, verso</translation>
    </message>
    <message>
        <source>1 staple</source>
        <translation>1 grampo</translation>
    </message>
    <message numerus="yes">
        <source>%n staples</source>
        <translation>
            <numerusform>%n grampo</numerusform>
            <numerusform>%n grampos</numerusform>
        </translation>
    </message>
    <message>
        <source>1 hole</source>
        <translation>1 furo</translation>
    </message>
    <message numerus="yes">
        <source>%n holes</source>
        <translation>
            <numerusform>%n furo</numerusform>
            <numerusform>%n furos</numerusform>
        </translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Sheet %1, front: %2</source>
        <translation>Folha %1, frente: %2</translation>
    </message>
    <message>
        <source>Sheet %1, back: %2</source>
        <translation>Folha %1, verso: %2</translation>
    </message>
    <message>
        <source>saddle fold</source>
        <translation>dobra canoa</translation>
    </message>
    <message>
        <source>single fold</source>
        <translation>dobra simples</translation>
    </message>
</context>
<context>
    <name>orvek::StandardNames</name>
    <message>
        <source>One staple, portrait</source>
        <translation>Um grampo, retrato</translation>
    </message>
    <message>
        <source>One staple, landscape</source>
        <translation>Um grampo, paisagem</translation>
    </message>
    <message>
        <source>Two staples, portrait</source>
        <translation>Dois grampos, retrato</translation>
    </message>
    <message>
        <source>Two staples, landscape</source>
        <translation>Dois grampos, paisagem</translation>
    </message>
    <message>
        <source>Saddle stitch</source>
        <translation>Grampo canoa</translation>
    </message>
    <message>
        <source>Accordion fold</source>
        <translation>Dobra sanfona</translation>
    </message>
    <message>
        <source>Double gate fold</source>
        <translation>Dobra janela dupla</translation>
    </message>
    <message>
        <source>Gate fold</source>
        <translation>Dobra janela</translation>
    </message>
    <message>
        <source>Half fold</source>
        <translation>Dobra ao meio</translation>
    </message>
    <message>
        <source>Half Z fold</source>
        <translation>Meia dobra em Z</translation>
    </message>
    <message>
        <source>Left gate fold</source>
        <translation>Dobra janela à esquerda</translation>
    </message>
    <message>
        <source>Letter fold</source>
        <translation>Dobra carta</translation>
    </message>
    <message>
        <source>Parallel fold</source>
        <translation>Dobra paralela</translation>
    </message>
    <message>
        <source>Poster fold</source>
        <translation>Dobra pôster</translation>
    </message>
    <message>
        <source>Right gate fold</source>
        <translation>Dobra janela à direita</translation>
    </message>
    <message>
        <source>Z fold</source>
        <translation>Dobra em Z</translation>
    </message>
    <message>
        <source>Engineering Z fold</source>
        <translation>Dobra em Z para plantas</translation>
    </message>
    <message>
        <source>Saddle fold</source>
        <translation>Dobra canoa</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>Grampear</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>Perfurar</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Capa</translation>
    </message>
    <message>
        <source>Binding</source>
        <translation>Encadernação</translation>
    </message>
    <message>
        <source>Edge stitch</source>
        <translation>Costura na borda</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>Dobrar</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Refilar</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>Livreto</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Deslocamento</translation>
    </message>
    <message>
        <source>Coating</source>
        <translation>Revestimento</translation>
    </message>
    <message>
        <source>Laminating</source>
        <translation>Laminação</translation>
    </message>
    <message>
        <source>Two staples</source>
        <translation>Dois grampos</translation>
    </message>
    <message>
        <source>Three staples</source>
        <translation>Três grampos</translation>
    </message>
    <message>
        <source>One staple</source>
        <translation>Um grampo</translation>
    </message>
    <message>
        <source>Two holes</source>
        <translation>Dois furos</translation>
    </message>
    <message>
        <source>Three holes</source>
        <translation>Três furos</translation>
    </message>
    <message>
        <source>Four holes</source>
        <translation>Quatro furos</translation>
    </message>
    <message>
        <source>Many holes</source>
        <translation>Vários furos</translation>
    </message>
    <message>
        <source>One hole</source>
        <translation>Um furo</translation>
    </message>
    <message>
        <source>After each page</source>
        <translation>Após cada página</translation>
    </message>
    <message>
        <source>After each document</source>
        <translation>Após cada documento</translation>
    </message>
    <message>
        <source>After each copy</source>
        <translation>Após cada cópia</translation>
    </message>
    <message>
        <source>After the job</source>
        <translation>Após o trabalho</translation>
    </message>
    <message>
        <source>top left</source>
        <translation>acima à esquerda</translation>
    </message>
    <message>
        <source>top right</source>
        <translation>acima à direita</translation>
    </message>
    <message>
        <source>bottom left</source>
        <translation>abaixo à esquerda</translation>
    </message>
    <message>
        <source>bottom right</source>
        <translation>abaixo à direita</translation>
    </message>
    <message>
        <source>left</source>
        <translation>à esquerda</translation>
    </message>
    <message>
        <source>right</source>
        <translation>à direita</translation>
    </message>
    <message>
        <source>top</source>
        <translation>acima</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>abaixo</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 dpi</source>
        <translation>%1 ppp</translation>
    </message>
    <message>
        <source>%1 × %2 dpi</source>
        <translation>%1 × %2 ppp</translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 mm</translation>
    </message>
    <message>
        <source>Paper size for manual feed</source>
        <translation>Tamanho do papel para alimentação manual</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>Tamanho do papel</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizado</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Installed equipment</source>
        <translation>Equipamento instalado</translation>
    </message>
    <message>
        <source>Further options</source>
        <translation>Outras opções</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>Frente e verso</translation>
    </message>
    <message>
        <source>Upper tray</source>
        <translation>Bandeja superior</translation>
    </message>
    <message>
        <source>Middle tray</source>
        <translation>Bandeja intermediária</translation>
    </message>
    <message>
        <source>Lower tray</source>
        <translation>Bandeja inferior</translation>
    </message>
    <message>
        <source>Rear tray</source>
        <translation>Bandeja traseira</translation>
    </message>
    <message>
        <source>Side tray</source>
        <translation>Bandeja lateral</translation>
    </message>
    <message>
        <source>Left tray</source>
        <translation>Bandeja esquerda</translation>
    </message>
    <message>
        <source>Right tray</source>
        <translation>Bandeja direita</translation>
    </message>
    <message>
        <source>Center tray</source>
        <translation>Bandeja central</translation>
    </message>
    <message>
        <source>Manual feed</source>
        <translation>Alimentação manual</translation>
    </message>
    <message>
        <source>Bypass tray</source>
        <translation>Bandeja auxiliar</translation>
    </message>
    <message>
        <source>Multipurpose tray</source>
        <translation>Bandeja multiuso</translation>
    </message>
    <message>
        <source>Large-capacity tray</source>
        <translation>Bandeja de alta capacidade</translation>
    </message>
    <message>
        <source>Envelope feeder</source>
        <translation>Alimentador de envelopes</translation>
    </message>
    <message>
        <source>Main tray</source>
        <translation>Bandeja principal</translation>
    </message>
    <message>
        <source>Alternate tray</source>
        <translation>Bandeja alternativa</translation>
    </message>
    <message>
        <source>Photo tray</source>
        <translation>Bandeja de fotos</translation>
    </message>
    <message>
        <source>Disc tray</source>
        <translation>Bandeja de discos</translation>
    </message>
    <message>
        <source>Cassette</source>
        <translation>Cassete</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Rolo</translation>
    </message>
    <message>
        <source>Tractor feed</source>
        <translation>Alimentação por trator</translation>
    </message>
    <message>
        <source>Tray %1</source>
        <translation>Bandeja %1</translation>
    </message>
    <message>
        <source>Cassette %1</source>
        <translation>Cassete %1</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>Rolo %1</translation>
    </message>
    <message>
        <source>Standard tray</source>
        <translation>Bandeja padrão</translation>
    </message>
    <message>
        <source>Face down</source>
        <translation>Face para baixo</translation>
    </message>
    <message>
        <source>Face up</source>
        <translation>Face para cima</translation>
    </message>
    <message>
        <source>Stacker</source>
        <translation>Empilhador</translation>
    </message>
    <message>
        <source>Mailbox</source>
        <translation>Caixa de correio</translation>
    </message>
    <message>
        <source>Finisher tray</source>
        <translation>Bandeja do finalizador</translation>
    </message>
    <message>
        <source>Booklet tray</source>
        <translation>Bandeja de livretos</translation>
    </message>
    <message>
        <source>Stacker %1</source>
        <translation>Empilhador %1</translation>
    </message>
    <message>
        <source>Mailbox %1</source>
        <translation>Caixa de correio %1</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>Comum</translation>
    </message>
    <message>
        <source>Recycled</source>
        <translation>Reciclado</translation>
    </message>
    <message>
        <source>Letterhead</source>
        <translation>Timbrado</translation>
    </message>
    <message>
        <source>Prepunched</source>
        <translation>Perfurado</translation>
    </message>
    <message>
        <source>Preprinted</source>
        <translation>Pré-impresso</translation>
    </message>
    <message>
        <source>Bond</source>
        <translation>Bond</translation>
    </message>
    <message>
        <source>Heavy</source>
        <translation>Pesado</translation>
    </message>
    <message>
        <source>Thin</source>
        <translation>Fino</translation>
    </message>
    <message>
        <source>Coated</source>
        <translation>Revestido</translation>
    </message>
    <message>
        <source>Card stock</source>
        <translation>Cartolina</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>Transparencies</source>
        <translation>Transparências</translation>
    </message>
    <message>
        <source>Envelopes</source>
        <translation>Envelopes</translation>
    </message>
    <message>
        <source>Glossy</source>
        <translation>Brilhante</translation>
    </message>
    <message>
        <source>Photo paper</source>
        <translation>Papel fotográfico</translation>
    </message>
    <message>
        <source>High-gloss photo paper</source>
        <translation>Papel fotográfico de alto brilho</translation>
    </message>
    <message>
        <source>Matte photo paper</source>
        <translation>Papel fotográfico fosco</translation>
    </message>
    <message>
        <source>Semi-gloss photo paper</source>
        <translation>Papel fotográfico semibrilho</translation>
    </message>
    <message>
        <source>Matte</source>
        <translation>Fosco</translation>
    </message>
    <message>
        <source>Colored</source>
        <translation>Colorido</translation>
    </message>
    <message>
        <source>Rough</source>
        <translation>Áspero</translation>
    </message>
    <message>
        <source>Tab stock</source>
        <translation>Divisórias</translation>
    </message>
    <message>
        <source>Vellum</source>
        <translation>Velino</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>Contínuo</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>Disco</translation>
    </message>
    <message>
        <source>Fine paper</source>
        <translation>Papel fino</translation>
    </message>
    <message>
        <source>Cotton</source>
        <translation>Algodão</translation>
    </message>
    <message>
        <source>US Letter</source>
        <translation>Carta (EUA)</translation>
    </message>
    <message>
        <source>US Legal</source>
        <translation>Ofício (EUA)</translation>
    </message>
    <message>
        <source>Tabloid</source>
        <translation>Tabloide</translation>
    </message>
    <message>
        <source>Ledger</source>
        <translation>Ledger</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>Statement</translation>
    </message>
    <message>
        <source>Executive</source>
        <translation>Executivo</translation>
    </message>
    <message>
        <source>Folio</source>
        <translation>Fólio</translation>
    </message>
    <message>
        <source>Oficio</source>
        <translation>Ofício</translation>
    </message>
    <message>
        <source>Postcard</source>
        <translation>Cartão-postal</translation>
    </message>
    <message>
        <source>Double postcard</source>
        <translation>Cartão-postal duplo</translation>
    </message>
    <message>
        <source>Envelope No. 10</source>
        <translation>Envelope nº 10</translation>
    </message>
    <message>
        <source>Envelope No. 9</source>
        <translation>Envelope nº 9</translation>
    </message>
    <message>
        <source>Envelope DL</source>
        <translation>Envelope DL</translation>
    </message>
    <message>
        <source>Envelope C4</source>
        <translation>Envelope C4</translation>
    </message>
    <message>
        <source>Envelope C5</source>
        <translation>Envelope C5</translation>
    </message>
    <message>
        <source>Envelope C6</source>
        <translation>Envelope C6</translation>
    </message>
    <message>
        <source>Envelope B5</source>
        <translation>Envelope B5</translation>
    </message>
    <message>
        <source>Envelope Monarch</source>
        <translation>Envelope Monarch</translation>
    </message>
    <message>
        <source>Envelope A2</source>
        <translation>Envelope A2</translation>
    </message>
    <message>
        <source>B4 (ISO)</source>
        <translation>B4 (ISO)</translation>
    </message>
    <message>
        <source>B5 (ISO)</source>
        <translation>B5 (ISO)</translation>
    </message>
    <message>
        <source>B4 (JIS)</source>
        <translation>B4 (JIS)</translation>
    </message>
    <message>
        <source>B5 (JIS)</source>
        <translation>B5 (JIS)</translation>
    </message>
    <message>
        <source>B6 (JIS)</source>
        <translation>B6 (JIS)</translation>
    </message>
    <message>
        <source>A3 oversize</source>
        <translation>A3 extra</translation>
    </message>
    <message>
        <source>3 × 5 in</source>
        <translation>3 × 5 pol.</translation>
    </message>
    <message>
        <source>4 × 6 in</source>
        <translation>4 × 6 pol.</translation>
    </message>
    <message>
        <source>5 × 7 in</source>
        <translation>5 × 7 pol.</translation>
    </message>
    <message>
        <source>5 × 8 in</source>
        <translation>5 × 8 pol.</translation>
    </message>
    <message>
        <source>8 × 10 in</source>
        <translation>8 × 10 pol.</translation>
    </message>
    <message>
        <source>US Foolscap</source>
        <translation>Foolscap (EUA)</translation>
    </message>
    <message>
        <source>%1, borderless</source>
        <translation>%1, sem bordas</translation>
    </message>
    <message>
        <source>%1, rotated</source>
        <translation>%1, girado</translation>
    </message>
    <message>
        <source>%1, oversize</source>
        <translation>%1, extra</translation>
    </message>
    <message>
        <source>%1, large margins</source>
        <translation>%1, margens largas</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desativado</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>Borda longa</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>Borda curta</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ativado</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>Preto e branco</translation>
    </message>
    <message>
        <source>Pure black and white</source>
        <translation>Preto e branco puro</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Cor</translation>
    </message>
    <message>
        <source>Color (CMYK)</source>
        <translation>Cor (CMYK)</translation>
    </message>
    <message>
        <source>Color (CMY)</source>
        <translation>Cor (CMY)</translation>
    </message>
    <message>
        <source>Color (Adobe RGB)</source>
        <translation>Cor (Adobe RGB)</translation>
    </message>
    <message>
        <source>Color (16 bits)</source>
        <translation>Cor (16 bits)</translation>
    </message>
    <message>
        <source>Black and white (16 bits)</source>
        <translation>Preto e branco (16 bits)</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>Rascunho</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alta</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Ótima</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Rápida</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Padrão</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>First page first</source>
        <translation>Primeira página primeiro</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>Última página primeiro</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Printer’s default</source>
        <translation>Padrão da impressora</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Outro</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>Origem do papel</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>Tipo de papel</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualidade</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>Bandeja de saída</translation>
    </message>
    <message>
        <source>Stapling</source>
        <translation>Grampeamento</translation>
    </message>
    <message>
        <source>Folding</source>
        <translation>Dobra</translation>
    </message>
    <message>
        <source>Hole punch</source>
        <translation>Perfuração</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>Acabamento</translation>
    </message>
    <message>
        <source>Cutting</source>
        <translation>Corte</translation>
    </message>
    <message>
        <source>Page order</source>
        <translation>Ordem das páginas</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolução</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Agrupar</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Páginas por folha</translation>
    </message>
    <message>
        <source>Tray switching</source>
        <translation>Troca de bandeja</translation>
    </message>
    <message>
        <source>Mirror image</source>
        <translation>Imagem espelhada</translation>
    </message>
    <message>
        <source>Negative</source>
        <translation>Negativo</translation>
    </message>
    <message>
        <source>Smoothing</source>
        <translation>Suavização</translation>
    </message>
    <message>
        <source>Slip sheets</source>
        <translation>Folhas separadoras</translation>
    </message>
    <message>
        <source>Toner saving</source>
        <translation>Economia de toner</translation>
    </message>
    <message>
        <source>Paper color</source>
        <translation>Cor do papel</translation>
    </message>
    <message>
        <source>Paper weight</source>
        <translation>Gramatura do papel</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>Todas as páginas</translation>
    </message>
    <message>
        <source>Odd pages only</source>
        <translation>Somente páginas ímpares</translation>
    </message>
    <message>
        <source>Even pages only</source>
        <translation>Somente páginas pares</translation>
    </message>
    <message>
        <source>Fit to page</source>
        <translation>Ajustar à página</translation>
    </message>
    <message>
        <source>Fill the page</source>
        <translation>Preencher a página</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Tamanho real</translation>
    </message>
    <message>
        <source>Left to right, then down</source>
        <translation>À direita, depois para baixo</translation>
    </message>
    <message>
        <source>Right to left, then down</source>
        <translation>À esquerda, depois para baixo</translation>
    </message>
    <message>
        <source>Left to right, then up</source>
        <translation>À direita, depois para cima</translation>
    </message>
    <message>
        <source>Right to left, then up</source>
        <translation>À esquerda, depois para cima</translation>
    </message>
    <message>
        <source>Down, then left to right</source>
        <translation>Para baixo, depois à direita</translation>
    </message>
    <message>
        <source>Down, then right to left</source>
        <translation>Para baixo, depois à esquerda</translation>
    </message>
    <message>
        <source>Up, then left to right</source>
        <translation>Para cima, depois à direita</translation>
    </message>
    <message>
        <source>Up, then right to left</source>
        <translation>Para cima, depois à esquerda</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Formulário</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>Classificado</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>Confidencial</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Secreto</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>Ultrassecreto</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>Não classificado</translation>
    </message>
    <message>
        <source>At once</source>
        <translation>Imediatamente</translation>
    </message>
    <message>
        <source>When released</source>
        <translation>Quando liberado</translation>
    </message>
    <message>
        <source>By day</source>
        <translation>Durante o dia</translation>
    </message>
    <message>
        <source>In the evening</source>
        <translation>À tarde</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>À noite</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>No fim de semana</translation>
    </message>
    <message>
        <source>In the second shift</source>
        <translation>No segundo turno</translation>
    </message>
    <message>
        <source>In the third shift</source>
        <translation>No terceiro turno</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Baixa</translation>
    </message>
    <message>
        <source>Urgent</source>
        <translation>Urgente</translation>
    </message>
    <message>
        <source>Odd and even pages</source>
        <translation>Páginas pares e ímpares</translation>
    </message>
    <message>
        <source>Adjust size</source>
        <translation>Escala</translation>
    </message>
    <message>
        <source>Sequence on the sheet</source>
        <translation>Ordem na folha</translation>
    </message>
    <message>
        <source>Banner page</source>
        <translation>Página de separação</translation>
    </message>
    <message>
        <source>Start printing</source>
        <translation>Iniciar impressão</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Prioridade</translation>
    </message>
</context>
<context>
    <name>orvek::SummaryLines</name>
    <message>
        <source>Copies</source>
        <translation>Cópias</translation>
    </message>
    <message>
        <source>Set by set</source>
        <translation>Conjunto por conjunto</translation>
    </message>
    <message>
        <source>Page by page</source>
        <translation>Página por página</translation>
    </message>
    <message>
        <source>Order of copies</source>
        <translation>Ordem das cópias</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientação</translation>
    </message>
    <message>
        <source>Page order</source>
        <translation>Ordem das páginas</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>Última página primeiro</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>Páginas por folha</translation>
    </message>
</context>
<context>
    <name>orvek::SummaryView</name>
    <message>
        <source>%1: %2 (changed)</source>
        <translation>%1: %2 (alterado)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumo</translation>
    </message>
    <message>
        <source>All settings of the job; those that were changed come first</source>
        <translation>Todas as configurações do trabalho; as alteradas vêm primeiro</translation>
    </message>
</context>
<context>
    <name>orvek::TicketBounds</name>
    <message>
        <source>Copies was set to 1: less is no job</source>
        <translation>As cópias foram definidas como 1: menos não é um trabalho</translation>
    </message>
    <message>
        <source>Copies was set to %1: no job makes more</source>
        <translation>As cópias foram definidas como %1: nenhum trabalho faz mais</translation>
    </message>
</context>
<context>
    <name>orvek::UnderstoodNote</name>
    <message>
        <source>%1 still applies</source>
        <translation>%1 continua valendo</translation>
    </message>
    <message>
        <source>“%1” was read as %2</source>
        <translation>“%1” foi lido como %2</translation>
    </message>
</context>
<context>
    <name>orvek::Wording</name>
    <message>
        <source>%1 was set to %2: it can&apos;t be combined with %3</source>
        <translation>%1 foi definido como “%2”: não pode ser combinado com “%3”</translation>
    </message>
    <message>
        <source>%1 was not set to %2: it can&apos;t be combined with %3</source>
        <translation>%1 não foi definido como “%2”: não pode ser combinado com “%3”</translation>
    </message>
</context>
</TS>
