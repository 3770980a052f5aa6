<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>orvek::Availability</name>
    <message>
        <source>needs the %1, which this printer doesn&apos;t have</source>
        <translation>需要 %1，而此打印机没有</translation>
    </message>
    <message>
        <source>not with %1</source>
        <translation>不能与 %1 同用</translation>
    </message>
    <message>
        <source>%1 would be set to %2</source>
        <translation>%1 将设为 %2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>a booklet is printed on both sides</source>
        <translation>小册子要双面打印</translation>
    </message>
</context>
<context>
    <name>orvek::ChooserRow</name>
    <message>
        <source>P&amp;rinter:</source>
        <translation>打印机(&amp;R)：</translation>
    </message>
    <message>
        <source>Pr&amp;eset:</source>
        <translation>预设(&amp;E)：</translation>
    </message>
</context>
<context>
    <name>orvek::CopiesRow</name>
    <message>
        <source>Copies</source>
        <translation>份数</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>逐份打印</translation>
    </message>
    <message>
        <source>Whole sets one after the other, not all copies of each page</source>
        <translation>一份接一份地打印，而不是先打印每页的所有份数</translation>
    </message>
    <message>
        <source>From 1 to %1; %2 applies</source>
        <translation>1 到 %1 之间；采用 %2</translation>
    </message>
    <message>
        <source>%1 still applies</source>
        <translation>%1 仍然有效</translation>
    </message>
</context>
<context>
    <name>orvek::CustomSizeRow</name>
    <message>
        <source>Paper width</source>
        <translation>纸张宽度</translation>
    </message>
    <message>
        <source>Paper height</source>
        <translation>纸张高度</translation>
    </message>
</context>
<context>
    <name>orvek::CustomValue</name>
    <message>
        <source>%1 pt</source>
        <translation>%1 磅</translation>
    </message>
    <message>
        <source>%1: digits only</source>
        <translation>%1：仅限数字</translation>
    </message>
    <message>
        <source>%1: %2 characters</source>
        <translation>%1：%2 个字符</translation>
    </message>
    <message>
        <source>%1: %2 to %3 characters</source>
        <translation>%1：%2 到 %3 个字符</translation>
    </message>
    <message>
        <source>%1: %2 to %3</source>
        <translation>%1：%2 到 %3</translation>
    </message>
</context>
<context>
    <name>orvek::CustomValueForm</name>
    <message>
        <source> pt</source>
        <translation> 磅</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 到 %2</translation>
    </message>
</context>
<context>
    <name>orvek::DocumentHeader</name>
    <message>
        <source>1 page</source>
        <translation>1 页</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%n 页</numerusform>
        </translation>
    </message>
    <message>
        <source>Document</source>
        <translation>文档</translation>
    </message>
</context>
<context>
    <name>orvek::DocumentInfo</name>
    <message>
        <source>(stdin)</source>
        <translation>（标准输入）</translation>
    </message>
</context>
<context>
    <name>orvek::DocumentMenu</name>
    <message>
        <source>Add and remove documents</source>
        <translation>添加和移除文档</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>添加文件(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Choose Other Files…</source>
        <translation>选择其他文件(&amp;C)…</translation>
    </message>
    <message>
        <source>Remove %1. %2</source>
        <translation>移除 %1. %2</translation>
    </message>
</context>
<context>
    <name>orvek::DocumentPassword</name>
    <message>
        <source>That password does not open %1.</source>
        <translation>该密码无法打开 %1。</translation>
    </message>
    <message>
        <source>%1 is protected by a password.</source>
        <translation>%1 受密码保护。</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>打开(&amp;O)</translation>
    </message>
</context>
<context>
    <name>orvek::Failure</name>
    <message>
        <source>the print server asks for a password, and none was given</source>
        <translation>打印服务器要求密码，但未提供</translation>
    </message>
    <message>
        <source>not found, so no booklet can be made; install this filter, too</source>
        <translation>未找到，因此无法制作小册子；请同时安装此过滤器</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>是文件夹</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>标准输入</translation>
    </message>
    <message>
        <source>is empty, so there is nothing to print</source>
        <translation>为空，因此没有可打印的内容</translation>
    </message>
    <message>
        <source>can be printed once only, and &quot;-&quot; is given more than once</source>
        <translation>只能打印一次，而“-”出现了多次</translation>
    </message>
    <message>
        <source>is a folder, not a PPD file</source>
        <translation>是文件夹，不是 PPD 文件</translation>
    </message>
    <message>
        <source>has no page %1: the number of its pages is %2</source>
        <translation>没有第 %1 页：总页数为 %2</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>标准输出</translation>
    </message>
    <message>
        <source>is the document itself, which would be lost; name another file</source>
        <translation>就是文档本身，会因此丢失；请指定其他文件</translation>
    </message>
    <message>
        <source>not found; install the package &quot;cups&quot;</source>
        <translation>未找到；请安装软件包“cups”</translation>
    </message>
    <message>
        <source>the filter %1 stopped with status %2</source>
        <translation>过滤器 %1 以状态 %2 停止</translation>
    </message>
    <message>
        <source>the filter %1 crashed on signal %2</source>
        <translation>过滤器 %1 因信号 %2 崩溃</translation>
    </message>
    <message>
        <source>the filter %1</source>
        <translation>过滤器 %1</translation>
    </message>
    <message>
        <source>the filter %1 has insecure permissions</source>
        <translation>过滤器 %1 的权限不安全</translation>
    </message>
    <message>
        <source>the filter %1 not available: %2</source>
        <translation>过滤器 %1 不可用：%2</translation>
    </message>
    <message>
        <source>it needs a password; print it from a program that opens it with that password</source>
        <translation>需要密码；请在能用该密码打开它的程序中打印</translation>
    </message>
    <message>
        <source>whoever made it has encrypted it and does not allow that it is printed</source>
        <translation>制作者已将其加密且不允许打印</translation>
    </message>
    <message>
        <source>its type is unknown; print a PDF, PostScript, text or image file</source>
        <translation>类型未知；请打印 PDF、PostScript、文本或图像文件</translation>
    </message>
    <message>
        <source>no filter prints the type %1</source>
        <translation>没有过滤器能打印类型 %1</translation>
    </message>
    <message>
        <source>the filters ended with status %1</source>
        <translation>过滤器以状态 %1 结束</translation>
    </message>
    <message>
        <source>the filters made no output of it</source>
        <translation>过滤器没有从中产生任何输出</translation>
    </message>
    <message>
        <source>only a part of it was read before the job was cancelled</source>
        <translation>作业取消前只读取了一部分</translation>
    </message>
    <message>
        <source>job</source>
        <translation>作业</translation>
    </message>
    <message>
        <source>is empty, so no job has been sent</source>
        <translation>为空，因此没有发送作业</translation>
    </message>
    <message>
        <source>%1; print it once more, and its sheets are made on this computer</source>
        <translation>%1；请再次打印，页面将在本机上制作</translation>
    </message>
    <message>
        <source>the print server wants it once more; print it from a file instead</source>
        <translation>打印服务器再次要求读取；请改从文件打印</translation>
    </message>
    <message>
        <source>the server&apos;s driver can&apos;t make booklets</source>
        <translation>服务器的驱动程序不能制作小册子</translation>
    </message>
    <message>
        <source>the server lacks the printer&apos;s driver and stops every job</source>
        <translation>服务器缺少打印机驱动程序，会停止每个作业</translation>
    </message>
    <message>
        <source>&quot;PluginInterface&quot; must be a number</source>
        <translation>“PluginInterface”必须是数字</translation>
    </message>
    <message>
        <source>made for plug-in interface %1, this program has %2: install the plug-in that belongs to it</source>
        <translation>为插件接口 %1 制作，而本程序的接口为 %2：请安装与之匹配的插件</translation>
    </message>
    <message>
        <source>&quot;Executable&quot; must name the plug-in&apos;s code file</source>
        <translation>“Executable”必须指明插件的代码文件</translation>
    </message>
    <message>
        <source>&quot;Executable&quot; must be a file inside the bundle, not &quot;%1&quot;</source>
        <translation>“Executable”必须是捆绑包内的文件，而不是“%1”</translation>
    </message>
    <message>
        <source>the plug-in&apos;s code is missing</source>
        <translation>缺少插件的代码</translation>
    </message>
    <message>
        <source>no such plug-in bundle (a folder)</source>
        <translation>没有该插件捆绑包（文件夹）</translation>
    </message>
    <message>
        <source>&quot;PrincipalClass&quot; must name the plug-in&apos;s class</source>
        <translation>“PrincipalClass”必须指明插件的类</translation>
    </message>
    <message>
        <source>the plug-in&apos;s code can&apos;t be loaded (%1)</source>
        <translation>无法加载插件的代码（%1）</translation>
    </message>
    <message>
        <source>has no factory for the class &quot;%1&quot;</source>
        <translation>没有类“%1”的工厂</translation>
    </message>
    <message>
        <source>the plug-in&apos;s factory refused its bundle</source>
        <translation>插件的工厂拒绝了其捆绑包</translation>
    </message>
    <message>
        <source>belongs to another user, whose code would run as yours; a plug-in must be yours or the administrator&apos;s</source>
        <translation>属于其他用户，其代码会以您的身份运行；插件必须属于您或管理员</translation>
    </message>
    <message>
        <source>can be written by others, whose code would run as yours; take that right from them (chmod go-w)</source>
        <translation>其他人可以写入，其代码会以您的身份运行；请取消其权限 (chmod go-w)</translation>
    </message>
    <message>
        <source>not a valid PPD file (%1)</source>
        <translation>不是有效的 PPD 文件（%1）</translation>
    </message>
    <message>
        <source>not a preset: %1</source>
        <translation>不是预设：%1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be text</source>
        <translation>“%1”必须是文本</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be an object</source>
        <translation>“%1”必须是对象</translation>
    </message>
    <message>
        <source>option &quot;%1&quot; must have a choice as text</source>
        <translation>选项“%1”的选择必须是文本</translation>
    </message>
    <message>
        <source>not a preset: one JSON object expected</source>
        <translation>不是预设：应为一个 JSON 对象</translation>
    </message>
    <message>
        <source>preset name</source>
        <translation>预设名称</translation>
    </message>
    <message>
        <source>is empty; give the preset a name</source>
        <translation>为空；请为预设命名</translation>
    </message>
    <message>
        <source>can&apos;t hold line breaks or control characters</source>
        <translation>不能包含换行或控制字符</translation>
    </message>
    <message>
        <source>preset &quot;%1&quot;</source>
        <translation>预设“%1”</translation>
    </message>
    <message>
        <source>can&apos;t be made</source>
        <translation>无法创建</translation>
    </message>
    <message>
        <source>the present one is damaged and left as it is (%1); delete it first</source>
        <translation>现有预设已损坏并保持原样（%1）；请先将其删除</translation>
    </message>
    <message>
        <source>holds a preset of another name: &quot;%1&quot;</source>
        <translation>包含另一名称的预设：“%1”</translation>
    </message>
    <message>
        <source>there is one of that name already</source>
        <translation>已有同名预设</translation>
    </message>
    <message>
        <source>the print server asks for a password</source>
        <translation>打印服务器要求密码</translation>
    </message>
    <message>
        <source>the print server did not accept the password of user &quot;%1&quot;, given %2 times</source>
        <translation>打印服务器未接受用户“%1”的密码（已输入 %2 次）</translation>
    </message>
    <message>
        <source>the print server sent an answer that cannot be read</source>
        <translation>打印服务器发来了无法读取的应答</translation>
    </message>
    <message>
        <source>the print server stopped answering; try again once it is up</source>
        <translation>打印服务器停止应答；请待其恢复后重试</translation>
    </message>
    <message>
        <source>the print server did not come to an end of its answer; try again later, or ask whoever runs it</source>
        <translation>打印服务器没有完成应答；请稍后重试，或询问其管理者</translation>
    </message>
    <message>
        <source>names a printer that does not exist: &quot;%1&quot;</source>
        <translation>指定了不存在的打印机：“%1”</translation>
    </message>
    <message>
        <source>the print server does not give its printer description (%1)</source>
        <translation>打印服务器未提供打印机描述（%1）</translation>
    </message>
    <message>
        <source>no print server has this name</source>
        <translation>没有使用该名称的打印服务器</translation>
    </message>
    <message>
        <source>no print server answers there</source>
        <translation>该处没有打印服务器应答</translation>
    </message>
    <message>
        <source>no print server answers there (%1)</source>
        <translation>该处没有打印服务器应答（%1）</translation>
    </message>
    <message>
        <source>the connection to the print server broke</source>
        <translation>与打印服务器的连接中断</translation>
    </message>
    <message>
        <source>the connection to the print server broke (%1)</source>
        <translation>与打印服务器的连接中断（%1）</translation>
    </message>
    <message>
        <source>the print server has no such queue or job</source>
        <translation>打印服务器上没有该队列或作业</translation>
    </message>
    <message>
        <source>the print server does not allow it for user &quot;%1&quot;</source>
        <translation>打印服务器不允许用户“%1”这样做</translation>
    </message>
    <message>
        <source>the queue takes no jobs at present</source>
        <translation>队列目前不接受作业</translation>
    </message>
    <message>
        <source>the print server gave no answer</source>
        <translation>打印服务器没有应答</translation>
    </message>
    <message>
        <source>not a page range; write for example 1-3,7</source>
        <translation>不是页码范围；请输入例如 1-3,7</translation>
    </message>
    <message>
        <source>not a ticket: JSON expected (%1)</source>
        <translation>不是作业单：应为 JSON（%1）</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>真或假</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>列表</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>对象</translation>
    </message>
    <message>
        <source>a number with a fraction</source>
        <translation>带小数的数字</translation>
    </message>
    <message>
        <source>not a ticket: one JSON object expected</source>
        <translation>不是作业单：应为一个 JSON 对象</translation>
    </message>
    <message>
        <source>key &quot;%1&quot; must be text or an integer, not %2</source>
        <translation>键“%1”必须是文本或整数，而不是%2</translation>
    </message>
    <message>
        <source>is larger than 1 MB, as no ticket and no preset is</source>
        <translation>大于 1 MB，作业单和预设都不会这么大</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>Bad file descriptor</source>
        <translation>文件描述符无效</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <translation>管道已断开</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>连接被拒绝</translation>
    </message>
    <message>
        <source>Connection reset by peer</source>
        <translation>连接被对方重置</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>连接超时</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>文件过大</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>输入/输出错误</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>是文件夹</translation>
    </message>
    <message>
        <source>Network is unreachable</source>
        <translation>网络不可达</translation>
    </message>
    <message>
        <source>No route to host</source>
        <translation>没有到主机的路由</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>设备上没有剩余空间</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>没有该文件或文件夹</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>不是文件夹</translation>
    </message>
    <message>
        <source>Operation now in progress</source>
        <translation>操作仍在进行</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>不允许的操作</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>权限不足</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>文件系统为只读</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>打开的文件过多</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>is damaged beyond repair</source>
        <translation>已损坏且无法修复</translation>
    </message>
    <message>
        <source>has no pages, so there is nothing to print</source>
        <translation>没有页面，因此没有可打印的内容</translation>
    </message>
    <message>
        <source>a copy that the filters can open can&apos;t be written; make room for temporary files</source>
        <translation>无法写入过滤器可打开的副本；请为临时文件腾出空间</translation>
    </message>
    <message>
        <source>the sheets of several documents can&apos;t be put into one PDF; print them one by one</source>
        <translation>无法将多个文档的纸张合并到一个 PDF 中；请逐个打印</translation>
    </message>
    <message>
        <source>no such printer on %1; choose another one</source>
        <translation>%1 上没有该打印机；请选择其他打印机</translation>
    </message>
    <message>
        <source>there is no default printer; choose one</source>
        <translation>没有默认打印机；请选择一台</translation>
    </message>
    <message>
        <source>there is none of that name; choose another one</source>
        <translation>没有该名称的预设；请选择其他预设</translation>
    </message>
    <message>
        <source>has no side that %1 asks for: the number of its sides is %2</source>
        <translation>没有 %1 所要求的面：总面数为 %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a meaning of its own in the list; choose another</source>
        <translation>“%1”在列表中另有含义；请另选一个</translation>
    </message>
</context>
<context>
    <name>orvek::GeneralPage</name>
    <message>
        <source>Last page first</source>
        <translation>从末页开始</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>纸张尺寸</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>纸张来源</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>纸张类型</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>每张页数</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>彩色</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>质量</translation>
    </message>
</context>
<context>
    <name>orvek::History</name>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>As the job</source>
        <translation>与作业相同</translation>
    </message>
    <message>
        <source>%1 pt</source>
        <translation>%1 磅</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>小册子</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>从右到左</translation>
    </message>
    <message>
        <source>Page borders</source>
        <translation>页面边框</translation>
    </message>
    <message>
        <source>Gutter</source>
        <translation>装订线</translation>
    </message>
    <message>
        <source>Creep</source>
        <translation>爬移</translation>
    </message>
    <message>
        <source>Target paper size</source>
        <translation>目标纸张尺寸</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>份数</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>逐份打印</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>从末页开始</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>每张页数</translation>
    </message>
    <message>
        <source>Other settings</source>
        <translation>其他设置</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>另外 %n 项</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orvek::HistoryButtons</name>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
</context>
<context>
    <name>orvek::JobBar</name>
    <message>
        <source>&amp;Print</source>
        <translation>打印(&amp;P)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>&amp;Print to File…</source>
        <translation>打印到文件(&amp;P)…</translation>
    </message>
    <message>
        <source>Stops the job</source>
        <translation>停止作业</translation>
    </message>
    <message>
        <source>Closes the window without printing</source>
        <translation>关闭窗口而不打印</translation>
    </message>
    <message>
        <source>Stopping the job</source>
        <translation>正在停止作业</translation>
    </message>
</context>
<context>
    <name>orvek::JobDocuments</name>
    <message>
        <source>Choose a file, or drop one here</source>
        <translation>选择文件，或将文件拖放到此处</translation>
    </message>
    <message>
        <source>Opening…</source>
        <translation>正在打开…</translation>
    </message>
    <message>
        <source>Protected by a password</source>
        <translation>受密码保护</translation>
    </message>
    <message>
        <source>Can&apos;t be printed</source>
        <translation>无法打印</translation>
    </message>
    <message>
        <source>There is no document yet</source>
        <translation>尚无文档</translation>
    </message>
    <message>
        <source>%1 needs its password</source>
        <translation>%1 需要密码</translation>
    </message>
    <message>
        <source>%1 is damaged beyond repair</source>
        <translation>%1 已损坏且无法修复</translation>
    </message>
    <message>
        <source>%1 has no pages</source>
        <translation>%1 没有页面</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 为空</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read</source>
        <translation>无法读取 %1</translation>
    </message>
    <message>
        <source>Enter Password…</source>
        <translation>输入密码…</translation>
    </message>
    <message>
        <source>Choose File…</source>
        <translation>选择文件…</translation>
    </message>
    <message>
        <source>Choose Documents</source>
        <translation>选择文档</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 以及另外 %2 项</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>文档</translation>
    </message>
    <message>
        <source>Add Documents</source>
        <translation>添加文档</translation>
    </message>
</context>
<context>
    <name>orvek::JobNotice</name>
    <message>
        <source>Job %1 on %2 was cancelled</source>
        <translation>%2 上的作业 %1 已取消</translation>
    </message>
    <message>
        <source>Sent to %1, job %2</source>
        <translation>已发送到 %1，作业 %2</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>取消作业</translation>
    </message>
</context>
<context>
    <name>orvek::JobPreview</name>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Previous side</source>
        <translation>上一面</translation>
    </message>
    <message>
        <source>Next side</source>
        <translation>下一面</translation>
    </message>
    <message>
        <source>Several sheets at once (Ctrl and wheel: zoom)</source>
        <translation>同时显示多张（Ctrl 加滚轮：缩放）</translation>
    </message>
    <message>
        <source>Several sheets at once</source>
        <translation>同时显示多张</translation>
    </message>
    <message>
        <source>No page of the document is printed.</source>
        <translation>文档中没有页面会被打印。</translation>
    </message>
    <message>
        <source>Reading the document…</source>
        <translation>正在读取文档…</translation>
    </message>
    <message>
        <source>The document&apos;s pages are not known: a sample</source>
        <translation>文档页面未知：示例</translation>
    </message>
    <message>
        <source>%1 × 1 sheet</source>
        <translation>%1 × 1 张</translation>
    </message>
    <message numerus="yes">
        <source>%1 × %n sheets</source>
        <translation>
            <numerusform>%1 × %n 张</numerusform>
        </translation>
    </message>
    <message>
        <source>1 sheet</source>
        <translation>1 张</translation>
    </message>
    <message numerus="yes">
        <source>%n sheets</source>
        <translation>
            <numerusform>%n 张</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no document yet: a sample</source>
        <translation>尚无文档：示例</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>双面</translation>
    </message>
</context>
<context>
    <name>orvek::JobStrip</name>
    <message>
        <source>Copies</source>
        <translation>份数</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>双面</translation>
    </message>
</context>
<context>
    <name>orvek::JobWarnings</name>
    <message>
        <source>%1 with copies that are not collated: equal pages would be stapled together</source>
        <translation>%1 与未逐份打印的份数同用：相同的页面会被订在一起</translation>
    </message>
    <message>
        <source>A booklet of %1 sheets is more than the printer folds at once: at most %2</source>
        <translation>小册子有 %1 张，超过打印机一次能折的张数：最多 %2 张</translation>
    </message>
    <message>
        <source>A booklet is printed on both sides, which can&apos;t be combined with %1</source>
        <translation>小册子要双面打印，不能与 %1 同用</translation>
    </message>
    <message>
        <source>The document has no page %1: the number of its pages is %2</source>
        <translation>文档没有第 %1 页：总页数为 %2</translation>
    </message>
    <message>
        <source>None of the sides that are asked for exists: the number of sides is %1</source>
        <translation>没有所要求的面：总面数为 %1</translation>
    </message>
</context>
<context>
    <name>orvek::LabelText</name>
    <message>
        <source>%1:</source>
        <comment>a label before its field</comment>
        <translation>%1：</translation>
    </message>
</context>
<context>
    <name>orvek::NoticeBar</name>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>Close the notice</source>
        <translation>关闭通知</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Earlier notice</source>
        <translation>上一条通知</translation>
    </message>
    <message>
        <source>Later notice</source>
        <translation>下一条通知</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Undo %n steps</source>
        <translation>
            <numerusform>撤销 %n 步(&amp;U)</numerusform>
        </translation>
    </message>
    <message>
        <source>Takes back the choice with all that it changed, and what came after it</source>
        <translation>撤销该选择及其引起的所有更改和之后的操作</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>a notice&apos;s place</comment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>重试</translation>
    </message>
</context>
<context>
    <name>orvek::OptionsModel</name>
    <message>
        <source>Changed; by itself: %1</source>
        <translation>已更改；默认为：%1</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>选择</translation>
    </message>
</context>
<context>
    <name>orvek::OptionsPage</name>
    <message>
        <source>Only changed</source>
        <translation>仅已更改</translation>
    </message>
    <message>
        <source>Set Back</source>
        <translation>还原</translation>
    </message>
    <message>
        <source>Set All Back</source>
        <translation>全部还原</translation>
    </message>
    <message>
        <source>Search options</source>
        <translation>搜索选项</translation>
    </message>
    <message>
        <source>1 option changed</source>
        <translation>已更改 1 个选项</translation>
    </message>
    <message numerus="yes">
        <source>%n options changed</source>
        <translation>
            <numerusform>已更改 %n 个选项</numerusform>
        </translation>
    </message>
    <message>
        <source>No option changed</source>
        <translation>没有更改选项</translation>
    </message>
    <message>
        <source>No option found</source>
        <translation>未找到选项</translation>
    </message>
    <message>
        <source>This printer has no more options</source>
        <translation>此打印机没有更多选项</translation>
    </message>
</context>
<context>
    <name>orvek::OptionsView</name>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>Return opens an option&apos;s choices or switches it, Delete sets it back</source>
        <translation>按回车键打开选项的选择或切换选项，按 Delete 键还原</translation>
    </message>
</context>
<context>
    <name>orvek::OrientationText</name>
    <message>
        <source>Portrait</source>
        <translation>纵向</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>横向</translation>
    </message>
    <message>
        <source>Portrait, upside down</source>
        <translation>纵向，倒置</translation>
    </message>
    <message>
        <source>Landscape, upside down</source>
        <translation>横向，倒置</translation>
    </message>
    <message>
        <source>As in the document</source>
        <translation>与文档相同</translation>
    </message>
</context>
<context>
    <name>orvek::PagesRow</name>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>范围</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>所有页面</translation>
    </message>
    <message>
        <source>A range of pages</source>
        <translation>页码范围</translation>
    </message>
    <message>
        <source>Page range</source>
        <translation>页码范围</translation>
    </message>
    <message>
        <source>e.g. 1-3, 7</source>
        <translation>例如 1-3, 7</translation>
    </message>
    <message>
        <source>Write which pages to print, for example 1-3, 7</source>
        <translation>请输入要打印的页面，例如 1-3, 7</translation>
    </message>
</context>
<context>
    <name>orvek::PasswordDialog</name>
    <message>
        <source>The print server %1 asks for a name and a password.</source>
        <translation>打印服务器 %1 要求用户名和密码。</translation>
    </message>
    <message>
        <source>The print server did not accept that name and password.</source>
        <translation>打印服务器未接受该用户名和密码。</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名称(&amp;N)：</translation>
    </message>
    <message>
        <source>&amp;Sign In</source>
        <translation>登录(&amp;S)</translation>
    </message>
</context>
<context>
    <name>orvek::PasswordForm</name>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>密码(&amp;P)：</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>orvek::PresetChooser</name>
    <message>
        <source>Preset</source>
        <translation>预设</translation>
    </message>
    <message>
        <source>Save and manage presets</source>
        <translation>保存和管理预设</translation>
    </message>
    <message>
        <source>&amp;Save As…</source>
        <translation>另存为(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>重命名(&amp;R)…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>上次使用的</translation>
    </message>
    <message>
        <source>Name of the preset:</source>
        <translation>预设名称：</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>保存预设</translation>
    </message>
    <message>
        <source>There is a preset “%1” already. Replace it?</source>
        <translation>已有预设“%1”。要替换吗？</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>重命名预设</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>删除预设</translation>
    </message>
    <message>
        <source>Delete the preset “%1”?</source>
        <translation>要删除预设“%1”吗？</translation>
    </message>
    <message>
        <source>Remember &amp;Last Settings</source>
        <translation>记住上次的设置(&amp;L)</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (已更改)</translation>
    </message>
</context>
<context>
    <name>orvek::PresetFit</name>
    <message>
        <source>this printer has no option &quot;%1&quot;</source>
        <translation>此打印机没有选项“%1”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is installed equipment, which a preset does not change</source>
        <translation>“%1”是已安装的设备，预设不会更改它</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of this printer has no choice &quot;%2&quot;</source>
        <translation>此打印机的“%1”没有选择“%2”</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of this printer takes %2</source>
        <translation>此打印机的“%1”接受 %2</translation>
    </message>
    <message>
        <source>this printer makes no booklets</source>
        <translation>此打印机不能制作小册子</translation>
    </message>
</context>
<context>
    <name>orvek::PrintDialog</name>
    <message>
        <source>the default printer</source>
        <translation>默认打印机</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>打印</translation>
    </message>
    <message>
        <source>Print all the same?</source>
        <translation>仍要打印吗？</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>打印(&amp;P)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>The sheets can be made on this computer and sent finished.</source>
        <translation>可以在本机上制作页面并发送成品。</translation>
    </message>
    <message>
        <source>Banner pages would be left out.</source>
        <translation>将省略横幅页。</translation>
    </message>
    <message>
        <source>&amp;Impose here and print</source>
        <translation>在此拼版并打印(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Prepare here and print</source>
        <translation>在此准备并打印(&amp;P)</translation>
    </message>
    <message>
        <source>The job was cancelled.</source>
        <translation>作业已取消。</translation>
    </message>
    <message>
        <source>It can still be printed into a file: choose File as the printer.</source>
        <translation>仍可打印到文件：请选择“文件”作为打印机。</translation>
    </message>
    <message>
        <source>Asking %1…</source>
        <translation>正在询问 %1…</translation>
    </message>
    <message>
        <source>Open a Printer Description</source>
        <translation>打开打印机描述</translation>
    </message>
    <message>
        <source>Printer descriptions (*.ppd *.ppd.gz)</source>
        <translation>打印机描述 (*.ppd *.ppd.gz)</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>正在读取 %1…</translation>
    </message>
    <message>
        <source>Not everything fits this printer:</source>
        <translation>并非所有设置都适合此打印机：</translation>
    </message>
    <message>
        <source>Not all of the preset fits this printer:</source>
        <translation>并非预设的所有内容都适合此打印机：</translation>
    </message>
    <message>
        <source>No printer is chosen</source>
        <translation>未选择打印机</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>没有文档</translation>
    </message>
    <message>
        <source>Printed into %1</source>
        <translation>已打印到 %1</translation>
    </message>
    <message>
        <source>Sent to %1, job %2</source>
        <translation>已发送到 %1，作业 %2</translation>
    </message>
    <message>
        <source>The printer is no longer there</source>
        <translation>打印机已不存在</translation>
    </message>
    <message>
        <source>%1 is no longer on the print server. Choose another printer.</source>
        <translation>%1 已不在打印服务器上。请选择其他打印机。</translation>
    </message>
</context>
<context>
    <name>orvek::PrinterChooser</name>
    <message>
        <source>%1 (default)</source>
        <translation>%1（默认）</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>打印机</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>File (%1)</source>
        <translation>文件（%1）</translation>
    </message>
    <message>
        <source>File (needs a printer description)</source>
        <translation>文件（需要打印机描述）</translation>
    </message>
    <message>
        <source>No printers: %1</source>
        <translation>没有打印机：%1</translation>
    </message>
    <message>
        <source>Open Printer Description…</source>
        <translation>打开打印机描述…</translation>
    </message>
    <message>
        <source>Prints into a file</source>
        <translation>打印到文件中</translation>
    </message>
    <message>
        <source>Choose a printer, or open a printer description</source>
        <translation>请选择打印机或打开打印机描述</translation>
    </message>
    <message>
        <source>Asking for the printers…</source>
        <translation>正在询问打印机…</translation>
    </message>
    <message>
        <source>No longer on the print server</source>
        <translation>已不在打印服务器上</translation>
    </message>
</context>
<context>
    <name>orvek::PrinterModel</name>
    <message>
        <source>used lately</source>
        <translation>最近使用</translation>
    </message>
</context>
<context>
    <name>orvek::PrinterPopup</name>
    <message>
        <source>No printer matches</source>
        <translation>没有匹配的打印机</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>打印机</translation>
    </message>
    <message>
        <source>Search for name, description or location</source>
        <translation>按名称、描述或位置搜索</translation>
    </message>
</context>
<context>
    <name>orvek::ProgressText</name>
    <message>
        <source>Printing…</source>
        <translation>正在打印…</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>第 %1 页</translation>
    </message>
    <message>
        <source>Printing: %1</source>
        <translation>正在打印：%1</translation>
    </message>
    <message>
        <source>Printing document %1 of %2: %3</source>
        <translation>正在打印第 %1 个文档（共 %2 个）：%3</translation>
    </message>
</context>
<context>
    <name>orvek::Queue</name>
    <message>
        <source>Connecting to the printer</source>
        <translation>正在连接打印机</translation>
    </message>
    <message>
        <source>A cover is open</source>
        <translation>有盖板打开</translation>
    </message>
    <message>
        <source>The printer&apos;s filter can be changed by others and is not run</source>
        <translation>打印机的过滤器可被他人更改，因此不运行</translation>
    </message>
    <message>
        <source>The printer&apos;s filter is missing</source>
        <translation>缺少打印机的过滤器</translation>
    </message>
    <message>
        <source>A door is open</source>
        <translation>有门打开</translation>
    </message>
    <message>
        <source>A paper tray is missing</source>
        <translation>缺少纸盒</translation>
    </message>
    <message>
        <source>Toner or ink is empty</source>
        <translation>碳粉或墨水已用完</translation>
    </message>
    <message>
        <source>Toner or ink is low</source>
        <translation>碳粉或墨水不足</translation>
    </message>
    <message>
        <source>The waste container is almost full</source>
        <translation>废粉盒快满了</translation>
    </message>
    <message>
        <source>The waste container is full</source>
        <translation>废粉盒已满</translation>
    </message>
    <message>
        <source>Out of paper</source>
        <translation>缺纸</translation>
    </message>
    <message>
        <source>Paper jam</source>
        <translation>卡纸</translation>
    </message>
    <message>
        <source>Paper is low</source>
        <translation>纸张不足</translation>
    </message>
    <message>
        <source>Paper has to be put in</source>
        <translation>需要放入纸张</translation>
    </message>
    <message>
        <source>Stopping</source>
        <translation>正在停止</translation>
    </message>
    <message>
        <source>The printer is offline</source>
        <translation>打印机处于脱机状态</translation>
    </message>
    <message>
        <source>The printer reports a problem</source>
        <translation>打印机报告问题</translation>
    </message>
    <message>
        <source>The output tray is almost full</source>
        <translation>出纸盒快满了</translation>
    </message>
    <message>
        <source>The output tray is full</source>
        <translation>出纸盒已满</translation>
    </message>
    <message>
        <source>The output tray is missing</source>
        <translation>缺少出纸盒</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>The printer is switched off</source>
        <translation>打印机已关机</translation>
    </message>
    <message>
        <source>The printer&apos;s memory is full</source>
        <translation>打印机内存已满</translation>
    </message>
    <message>
        <source>Part of the printer is stopped</source>
        <translation>打印机的部分已停止</translation>
    </message>
    <message>
        <source>The printer does not answer</source>
        <translation>打印机没有应答</translation>
    </message>
    <message>
        <source>Toner is empty</source>
        <translation>碳粉已用完</translation>
    </message>
    <message>
        <source>Toner is low</source>
        <translation>碳粉不足</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>空闲</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>正在打印</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>State unknown</source>
        <translation>状态未知</translation>
    </message>
    <message>
        <source>, takes no jobs</source>
        <translation>，不接受作业</translation>
    </message>
</context>
<context>
    <name>orvek::SavePlace</name>
    <message>
        <source>Printed</source>
        <translation>已打印</translation>
    </message>
    <message>
        <source>Print into a File</source>
        <translation>打印到文件</translation>
    </message>
    <message>
        <source>PDF of the sheets (*.pdf)</source>
        <translation>纸张的 PDF (*.pdf)</translation>
    </message>
    <message>
        <source>As the printer takes it (*.ps *.prn)</source>
        <translation>打印机所用的格式 (*.ps *.prn)</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>打印</translation>
    </message>
    <message>
        <source>Printed into %1.</source>
        <translation>已打印到 %1。</translation>
    </message>
    <message>
        <source>&amp;Show in Folder</source>
        <translation>在文件夹中显示(&amp;S)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>orvek::SessionJob</name>
    <message>
        <source>Booklet was set to Off: it can&apos;t be combined with several pages per sheet</source>
        <translation>小册子已设为“关”：不能与每张多页同用</translation>
    </message>
</context>
<context>
    <name>orvek::SessionView</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>更多选项</translation>
    </message>
</context>
<context>
    <name>orvek::SheetsView</name>
    <message>
        <source>%1, back</source>
        <translation>%1，背面</translation>
    </message>
</context>
<context>
    <name>orvek::SpokenSide</name>
    <message>
        <source>page %1</source>
        <translation>第 %1 页</translation>
    </message>
    <message>
        <source>page %1 left</source>
        <translation>左侧第 %1 页</translation>
    </message>
    <message>
        <source>page %1 right</source>
        <translation>右侧第 %1 页</translation>
    </message>
    <message>
        <source>blank</source>
        <translation>空白</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>第 %1 张，共 %2 张</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation>第 %1 张，共 %2 张，正面</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation>第 %1 张，共 %2 张，背面</translation>
    </message>
    <message>
        <source>1 staple</source>
        <translation>1 个订书钉</translation>
    </message>
    <message numerus="yes">
        <source>%n staples</source>
        <translation>
            <numerusform>%n 个订书钉</numerusform>
        </translation>
    </message>
    <message>
        <source>1 hole</source>
        <translation>1 个孔</translation>
    </message>
    <message numerus="yes">
        <source>%n holes</source>
        <translation>
            <numerusform>%n 个孔</numerusform>
        </translation>
    </message>
    <message>
        <source>, </source>
        <translation>，</translation>
    </message>
    <message>
        <source>Sheet %1, front: %2</source>
        <translation>第 %1 张，正面：%2</translation>
    </message>
    <message>
        <source>Sheet %1, back: %2</source>
        <translation>第 %1 张，背面：%2</translation>
    </message>
    <message>
        <source>saddle fold</source>
        <translation>骑马折</translation>
    </message>
    <message>
        <source>single fold</source>
        <translation>单折</translation>
    </message>
</context>
<context>
    <name>orvek::StandardNames</name>
    <message>
        <source>One staple, portrait</source>
        <translation>一个订书钉，纵向</translation>
    </message>
    <message>
        <source>One staple, landscape</source>
        <translation>一个订书钉，横向</translation>
    </message>
    <message>
        <source>Two staples, portrait</source>
        <translation>两个订书钉，纵向</translation>
    </message>
    <message>
        <source>Two staples, landscape</source>
        <translation>两个订书钉，横向</translation>
    </message>
    <message>
        <source>Saddle stitch</source>
        <translation>骑马订</translation>
    </message>
    <message>
        <source>Accordion fold</source>
        <translation>风琴折</translation>
    </message>
    <message>
        <source>Double gate fold</source>
        <translation>双关门折</translation>
    </message>
    <message>
        <source>Gate fold</source>
        <translation>关门折</translation>
    </message>
    <message>
        <source>Half fold</source>
        <translation>对折</translation>
    </message>
    <message>
        <source>Half Z fold</source>
        <translation>半 Z 形折</translation>
    </message>
    <message>
        <source>Left gate fold</source>
        <translation>左关门折</translation>
    </message>
    <message>
        <source>Letter fold</source>
        <translation>信函折</translation>
    </message>
    <message>
        <source>Parallel fold</source>
        <translation>平行折</translation>
    </message>
    <message>
        <source>Poster fold</source>
        <translation>海报折</translation>
    </message>
    <message>
        <source>Right gate fold</source>
        <translation>右关门折</translation>
    </message>
    <message>
        <source>Z fold</source>
        <translation>Z 形折</translation>
    </message>
    <message>
        <source>Engineering Z fold</source>
        <translation>工程图 Z 形折</translation>
    </message>
    <message>
        <source>Saddle fold</source>
        <translation>骑马折</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>装订</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>打孔</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>封面</translation>
    </message>
    <message>
        <source>Binding</source>
        <translation>装帧</translation>
    </message>
    <message>
        <source>Edge stitch</source>
        <translation>边缘装订</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>折页</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>裁切</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>小册子</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>错位</translation>
    </message>
    <message>
        <source>Coating</source>
        <translation>涂层</translation>
    </message>
    <message>
        <source>Laminating</source>
        <translation>覆膜</translation>
    </message>
    <message>
        <source>Two staples</source>
        <translation>两个订书钉</translation>
    </message>
    <message>
        <source>Three staples</source>
        <translation>三个订书钉</translation>
    </message>
    <message>
        <source>One staple</source>
        <translation>一个订书钉</translation>
    </message>
    <message>
        <source>Two holes</source>
        <translation>两孔</translation>
    </message>
    <message>
        <source>Three holes</source>
        <translation>三孔</translation>
    </message>
    <message>
        <source>Four holes</source>
        <translation>四孔</translation>
    </message>
    <message>
        <source>Many holes</source>
        <translation>多孔</translation>
    </message>
    <message>
        <source>One hole</source>
        <translation>一孔</translation>
    </message>
    <message>
        <source>After each page</source>
        <translation>每页之后</translation>
    </message>
    <message>
        <source>After each document</source>
        <translation>每个文档之后</translation>
    </message>
    <message>
        <source>After each copy</source>
        <translation>每份之后</translation>
    </message>
    <message>
        <source>After the job</source>
        <translation>作业之后</translation>
    </message>
    <message>
        <source>top left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>top right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>bottom left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>bottom right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>下</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>%1 dpi</source>
        <translation>%1 dpi</translation>
    </message>
    <message>
        <source>%1 × %2 dpi</source>
        <translation>%1 × %2 dpi</translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 毫米</translation>
    </message>
    <message>
        <source>Paper size for manual feed</source>
        <translation>手动进纸的纸张尺寸</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>纸张尺寸</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>自定义</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Installed equipment</source>
        <translation>已安装的设备</translation>
    </message>
    <message>
        <source>Further options</source>
        <translation>其他选项</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>双面</translation>
    </message>
    <message>
        <source>Upper tray</source>
        <translation>上层纸盒</translation>
    </message>
    <message>
        <source>Middle tray</source>
        <translation>中层纸盒</translation>
    </message>
    <message>
        <source>Lower tray</source>
        <translation>下层纸盒</translation>
    </message>
    <message>
        <source>Rear tray</source>
        <translation>后部纸盒</translation>
    </message>
    <message>
        <source>Side tray</source>
        <translation>侧面纸盒</translation>
    </message>
    <message>
        <source>Left tray</source>
        <translation>左侧纸盒</translation>
    </message>
    <message>
        <source>Right tray</source>
        <translation>右侧纸盒</translation>
    </message>
    <message>
        <source>Center tray</source>
        <translation>中央纸盒</translation>
    </message>
    <message>
        <source>Manual feed</source>
        <translation>手动进纸</translation>
    </message>
    <message>
        <source>Bypass tray</source>
        <translation>旁路纸盒</translation>
    </message>
    <message>
        <source>Multipurpose tray</source>
        <translation>多用途纸盒</translation>
    </message>
    <message>
        <source>Large-capacity tray</source>
        <translation>大容量纸盒</translation>
    </message>
    <message>
        <source>Envelope feeder</source>
        <translation>信封进纸器</translation>
    </message>
    <message>
        <source>Main tray</source>
        <translation>主纸盒</translation>
    </message>
    <message>
        <source>Alternate tray</source>
        <translation>备用纸盒</translation>
    </message>
    <message>
        <source>Photo tray</source>
        <translation>照片纸盒</translation>
    </message>
    <message>
        <source>Disc tray</source>
        <translation>光盘托盘</translation>
    </message>
    <message>
        <source>Cassette</source>
        <translation>纸匣</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>卷筒纸</translation>
    </message>
    <message>
        <source>Tractor feed</source>
        <translation>链式进纸</translation>
    </message>
    <message>
        <source>Tray %1</source>
        <translation>纸盒 %1</translation>
    </message>
    <message>
        <source>Cassette %1</source>
        <translation>纸匣 %1</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>卷筒纸 %1</translation>
    </message>
    <message>
        <source>Standard tray</source>
        <translation>标准纸盒</translation>
    </message>
    <message>
        <source>Face down</source>
        <translation>面朝下</translation>
    </message>
    <message>
        <source>Face up</source>
        <translation>面朝上</translation>
    </message>
    <message>
        <source>Stacker</source>
        <translation>堆纸器</translation>
    </message>
    <message>
        <source>Mailbox</source>
        <translation>邮箱</translation>
    </message>
    <message>
        <source>Finisher tray</source>
        <translation>整理器纸盒</translation>
    </message>
    <message>
        <source>Booklet tray</source>
        <translation>小册子纸盒</translation>
    </message>
    <message>
        <source>Stacker %1</source>
        <translation>堆纸器 %1</translation>
    </message>
    <message>
        <source>Mailbox %1</source>
        <translation>邮箱 %1</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>普通纸</translation>
    </message>
    <message>
        <source>Recycled</source>
        <translation>再生纸</translation>
    </message>
    <message>
        <source>Letterhead</source>
        <translation>信头纸</translation>
    </message>
    <message>
        <source>Prepunched</source>
        <translation>预打孔纸</translation>
    </message>
    <message>
        <source>Preprinted</source>
        <translation>预印纸</translation>
    </message>
    <message>
        <source>Bond</source>
        <translation>证券纸</translation>
    </message>
    <message>
        <source>Heavy</source>
        <translation>厚纸</translation>
    </message>
    <message>
        <source>Thin</source>
        <translation>薄纸</translation>
    </message>
    <message>
        <source>Coated</source>
        <translation>涂布纸</translation>
    </message>
    <message>
        <source>Card stock</source>
        <translation>卡纸</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>标签纸</translation>
    </message>
    <message>
        <source>Transparencies</source>
        <translation>透明胶片</translation>
    </message>
    <message>
        <source>Envelopes</source>
        <translation>信封</translation>
    </message>
    <message>
        <source>Glossy</source>
        <translation>光面纸</translation>
    </message>
    <message>
        <source>Photo paper</source>
        <translation>相纸</translation>
    </message>
    <message>
        <source>High-gloss photo paper</source>
        <translation>高光相纸</translation>
    </message>
    <message>
        <source>Matte photo paper</source>
        <translation>哑光相纸</translation>
    </message>
    <message>
        <source>Semi-gloss photo paper</source>
        <translation>半光相纸</translation>
    </message>
    <message>
        <source>Matte</source>
        <translation>哑光纸</translation>
    </message>
    <message>
        <source>Colored</source>
        <translation>彩色纸</translation>
    </message>
    <message>
        <source>Rough</source>
        <translation>粗糙纸</translation>
    </message>
    <message>
        <source>Tab stock</source>
        <translation>索引纸</translation>
    </message>
    <message>
        <source>Vellum</source>
        <translation>羊皮纸</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>连续纸</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>光盘</translation>
    </message>
    <message>
        <source>Fine paper</source>
        <translation>优质纸</translation>
    </message>
    <message>
        <source>Cotton</source>
        <translation>棉浆纸</translation>
    </message>
    <message>
        <source>US Letter</source>
        <translation>美国信纸</translation>
    </message>
    <message>
        <source>US Legal</source>
        <translation>美国法律文件纸</translation>
    </message>
    <message>
        <source>Tabloid</source>
        <translation>小报</translation>
    </message>
    <message>
        <source>Ledger</source>
        <translation>账簿纸</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>报告单</translation>
    </message>
    <message>
        <source>Executive</source>
        <translation>行政公文纸</translation>
    </message>
    <message>
        <source>Folio</source>
        <translation>对开纸</translation>
    </message>
    <message>
        <source>Oficio</source>
        <translation>Oficio</translation>
    </message>
    <message>
        <source>Postcard</source>
        <translation>明信片</translation>
    </message>
    <message>
        <source>Double postcard</source>
        <translation>双联明信片</translation>
    </message>
    <message>
        <source>Envelope No. 10</source>
        <translation>10 号信封</translation>
    </message>
    <message>
        <source>Envelope No. 9</source>
        <translation>9 号信封</translation>
    </message>
    <message>
        <source>Envelope DL</source>
        <translation>DL 信封</translation>
    </message>
    <message>
        <source>Envelope C4</source>
        <translation>C4 信封</translation>
    </message>
    <message>
        <source>Envelope C5</source>
        <translation>C5 信封</translation>
    </message>
    <message>
        <source>Envelope C6</source>
        <translation>C6 信封</translation>
    </message>
    <message>
        <source>Envelope B5</source>
        <translation>B5 信封</translation>
    </message>
    <message>
        <source>Envelope Monarch</source>
        <translation>Monarch 信封</translation>
    </message>
    <message>
        <source>Envelope A2</source>
        <translation>A2 信封</translation>
    </message>
    <message>
        <source>B4 (ISO)</source>
        <translation>B4（ISO）</translation>
    </message>
    <message>
        <source>B5 (ISO)</source>
        <translation>B5（ISO）</translation>
    </message>
    <message>
        <source>B4 (JIS)</source>
        <translation>B4（JIS）</translation>
    </message>
    <message>
        <source>B5 (JIS)</source>
        <translation>B5（JIS）</translation>
    </message>
    <message>
        <source>B6 (JIS)</source>
        <translation>B6（JIS）</translation>
    </message>
    <message>
        <source>A3 oversize</source>
        <translation>A3 加大</translation>
    </message>
    <message>
        <source>3 × 5 in</source>
        <translation>3 × 5 英寸</translation>
    </message>
    <message>
        <source>4 × 6 in</source>
        <translation>4 × 6 英寸</translation>
    </message>
    <message>
        <source>5 × 7 in</source>
        <translation>5 × 7 英寸</translation>
    </message>
    <message>
        <source>5 × 8 in</source>
        <translation>5 × 8 英寸</translation>
    </message>
    <message>
        <source>8 × 10 in</source>
        <translation>8 × 10 英寸</translation>
    </message>
    <message>
        <source>US Foolscap</source>
        <translation>美国大页纸</translation>
    </message>
    <message>
        <source>%1, borderless</source>
        <translation>%1，无边距</translation>
    </message>
    <message>
        <source>%1, rotated</source>
        <translation>%1，旋转</translation>
    </message>
    <message>
        <source>%1, oversize</source>
        <translation>%1，加大</translation>
    </message>
    <message>
        <source>%1, large margins</source>
        <translation>%1，宽边距</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>长边</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>短边</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>黑白</translation>
    </message>
    <message>
        <source>Pure black and white</source>
        <translation>纯黑白</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>彩色</translation>
    </message>
    <message>
        <source>Color (CMYK)</source>
        <translation>彩色（CMYK）</translation>
    </message>
    <message>
        <source>Color (CMY)</source>
        <translation>彩色（CMY）</translation>
    </message>
    <message>
        <source>Color (Adobe RGB)</source>
        <translation>彩色（Adobe RGB）</translation>
    </message>
    <message>
        <source>Color (16 bits)</source>
        <translation>彩色（16 位）</translation>
    </message>
    <message>
        <source>Black and white (16 bits)</source>
        <translation>黑白（16 位）</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>草稿</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>普通</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>最佳</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>快速</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>标准</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>照片</translation>
    </message>
    <message>
        <source>First page first</source>
        <translation>从首页开始</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>从末页开始</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Printer’s default</source>
        <translation>打印机默认</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>纸张来源</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>纸张类型</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>质量</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>出纸盒</translation>
    </message>
    <message>
        <source>Stapling</source>
        <translation>装订</translation>
    </message>
    <message>
        <source>Folding</source>
        <translation>折页</translation>
    </message>
    <message>
        <source>Hole punch</source>
        <translation>打孔</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>整理</translation>
    </message>
    <message>
        <source>Cutting</source>
        <translation>裁切</translation>
    </message>
    <message>
        <source>Page order</source>
        <translation>页面顺序</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>分辨率</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>逐份打印</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>每张页数</translation>
    </message>
    <message>
        <source>Tray switching</source>
        <translation>纸盒切换</translation>
    </message>
    <message>
        <source>Mirror image</source>
        <translation>镜像</translation>
    </message>
    <message>
        <source>Negative</source>
        <translation>负片</translation>
    </message>
    <message>
        <source>Smoothing</source>
        <translation>平滑处理</translation>
    </message>
    <message>
        <source>Slip sheets</source>
        <translation>分隔页</translation>
    </message>
    <message>
        <source>Toner saving</source>
        <translation>省墨模式</translation>
    </message>
    <message>
        <source>Paper color</source>
        <translation>纸张颜色</translation>
    </message>
    <message>
        <source>Paper weight</source>
        <translation>纸张克重</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>所有页面</translation>
    </message>
    <message>
        <source>Odd pages only</source>
        <translation>仅奇数页</translation>
    </message>
    <message>
        <source>Even pages only</source>
        <translation>仅偶数页</translation>
    </message>
    <message>
        <source>Fit to page</source>
        <translation>适合页面</translation>
    </message>
    <message>
        <source>Fill the page</source>
        <translation>填满页面</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>实际大小</translation>
    </message>
    <message>
        <source>Left to right, then down</source>
        <translation>从左到右，再向下</translation>
    </message>
    <message>
        <source>Right to left, then down</source>
        <translation>从右到左，再向下</translation>
    </message>
    <message>
        <source>Left to right, then up</source>
        <translation>从左到右，再向上</translation>
    </message>
    <message>
        <source>Right to left, then up</source>
        <translation>从右到左，再向上</translation>
    </message>
    <message>
        <source>Down, then left to right</source>
        <translation>向下，再从左到右</translation>
    </message>
    <message>
        <source>Down, then right to left</source>
        <translation>向下，再从右到左</translation>
    </message>
    <message>
        <source>Up, then left to right</source>
        <translation>向上，再从左到右</translation>
    </message>
    <message>
        <source>Up, then right to left</source>
        <translation>向上，再从右到左</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>表单</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>保密</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>机密</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>秘密</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>绝密</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>非保密</translation>
    </message>
    <message>
        <source>At once</source>
        <translation>立即</translation>
    </message>
    <message>
        <source>When released</source>
        <translation>释放后</translation>
    </message>
    <message>
        <source>By day</source>
        <translation>白天</translation>
    </message>
    <message>
        <source>In the evening</source>
        <translation>傍晚</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>夜间</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>周末</translation>
    </message>
    <message>
        <source>In the second shift</source>
        <translation>第二班</translation>
    </message>
    <message>
        <source>In the third shift</source>
        <translation>第三班</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>Urgent</source>
        <translation>紧急</translation>
    </message>
    <message>
        <source>Odd and even pages</source>
        <translation>奇偶页</translation>
    </message>
    <message>
        <source>Adjust size</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Sequence on the sheet</source>
        <translation>纸张上的顺序</translation>
    </message>
    <message>
        <source>Banner page</source>
        <translation>横幅页</translation>
    </message>
    <message>
        <source>Start printing</source>
        <translation>开始打印</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>优先级</translation>
    </message>
</context>
<context>
    <name>orvek::SummaryLines</name>
    <message>
        <source>Copies</source>
        <translation>份数</translation>
    </message>
    <message>
        <source>Set by set</source>
        <translation>逐份</translation>
    </message>
    <message>
        <source>Page by page</source>
        <translation>逐页</translation>
    </message>
    <message>
        <source>Order of copies</source>
        <translation>份数顺序</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Page order</source>
        <translation>页面顺序</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>从末页开始</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>每张页数</translation>
    </message>
</context>
<context>
    <name>orvek::SummaryView</name>
    <message>
        <source>%1: %2 (changed)</source>
        <translation>%1：%2（已更改）</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>All settings of the job; those that were changed come first</source>
        <translation>作业的所有设置；已更改的在前</translation>
    </message>
</context>
<context>
    <name>orvek::TicketBounds</name>
    <message>
        <source>Copies was set to 1: less is no job</source>
        <translation>份数已设为 1：再少就没有作业了</translation>
    </message>
    <message>
        <source>Copies was set to %1: no job makes more</source>
        <translation>份数已设为 %1：作业最多只能这么多</translation>
    </message>
</context>
<context>
    <name>orvek::UnderstoodNote</name>
    <message>
        <source>%1 still applies</source>
        <translation>%1 仍然有效</translation>
    </message>
    <message>
        <source>“%1” was read as %2</source>
        <translation>“%1”读作 %2</translation>
    </message>
</context>
<context>
    <name>orvek::Wording</name>
    <message>
        <source>%1 was set to %2: it can&apos;t be combined with %3</source>
        <translation>%1 已设为“%2”：不能与“%3”同用</translation>
    </message>
    <message>
        <source>%1 was not set to %2: it can&apos;t be combined with %3</source>
        <translation>%1 未设为“%2”：不能与“%3”同用</translation>
    </message>
</context>
</TS>
