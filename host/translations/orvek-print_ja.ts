<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>orvek::Availability</name>
    <message>
        <source>needs the %1, which this printer doesn&apos;t have</source>
        <translation>%1 が必要ですが、このプリンターにはありません</translation>
    </message>
    <message>
        <source>not with %1</source>
        <translation>%1 とは併用できません</translation>
    </message>
    <message>
        <source>%1 would be set to %2</source>
        <translation>%1 が %2 に変わります</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>a booklet is printed on both sides</source>
        <translation>小冊子は両面に印刷されます</translation>
    </message>
</context>
<context>
    <name>orvek::ChooserRow</name>
    <message>
        <source>P&amp;rinter:</source>
        <translation>プリンター(&amp;R):</translation>
    </message>
    <message>
        <source>Pr&amp;eset:</source>
        <translation>プリセット(&amp;E):</translation>
    </message>
</context>
<context>
    <name>orvek::CopiesRow</name>
    <message>
        <source>Copies</source>
        <translation>部数</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>部単位で印刷</translation>
    </message>
    <message>
        <source>Whole sets one after the other, not all copies of each page</source>
        <translation>ページごとではなく、1 部ずつ印刷します</translation>
    </message>
    <message>
        <source>From 1 to %1; %2 applies</source>
        <translation>1 から %1 まで。%2 が使われます</translation>
    </message>
    <message>
        <source>%1 still applies</source>
        <translation>%1 のままです</translation>
    </message>
</context>
<context>
    <name>orvek::CustomSizeRow</name>
    <message>
        <source>Paper width</source>
        <translation>用紙の幅</translation>
    </message>
    <message>
        <source>Paper height</source>
        <translation>用紙の高さ</translation>
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
        <translation>%1: 数字のみ</translation>
    </message>
    <message>
        <source>%1: %2 characters</source>
        <translation>%1: %2 文字</translation>
    </message>
    <message>
        <source>%1: %2 to %3 characters</source>
        <translation>%1: %2～%3 文字</translation>
    </message>
    <message>
        <source>%1: %2 to %3</source>
        <translation>%1: %2～%3</translation>
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
        <translation>%1～%2</translation>
    </message>
</context>
<context>
    <name>orvek::DocumentHeader</name>
    <message>
        <source>1 page</source>
        <translation>1 ページ</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%n ページ</numerusform>
        </translation>
    </message>
    <message>
        <source>Document</source>
        <translation>文書</translation>
    </message>
</context>
<context>
    <name>orvek::DocumentInfo</name>
    <message>
        <source>(stdin)</source>
        <translation>(標準入力)</translation>
    </message>
</context>
<context>
    <name>orvek::DocumentMenu</name>
    <message>
        <source>Add and remove documents</source>
        <translation>文書の追加と削除</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>ファイルを追加(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Choose Other Files…</source>
        <translation>別のファイルを選択(&amp;C)…</translation>
    </message>
    <message>
        <source>Remove %1. %2</source>
        <translation>%1. %2 を削除</translation>
    </message>
</context>
<context>
    <name>orvek::DocumentPassword</name>
    <message>
        <source>That password does not open %1.</source>
        <translation>このパスワードでは %1 を開けません。</translation>
    </message>
    <message>
        <source>%1 is protected by a password.</source>
        <translation>%1 はパスワードで保護されています。</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>開く(&amp;O)</translation>
    </message>
</context>
<context>
    <name>orvek::Failure</name>
    <message>
        <source>is empty, so no job has been sent</source>
        <translation>空のため、ジョブは送信されませんでした</translation>
    </message>
    <message>
        <source>job</source>
        <translation>ジョブ</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>フォルダーです</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>標準入力</translation>
    </message>
    <message>
        <source>can be printed once only, and &quot;-&quot; is given more than once</source>
        <translation>一度しか印刷できませんが、「-」が複数回指定されています</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>標準出力</translation>
    </message>
    <message>
        <source>is a folder, not a PPD file</source>
        <translation>PPD ファイルではなくフォルダーです</translation>
    </message>
    <message>
        <source>the filters made no output of it</source>
        <translation>フィルターは何も出力しませんでした</translation>
    </message>
    <message>
        <source>not found, so no booklet can be made; install this filter, too</source>
        <translation>見つからないため小冊子を作れません。このフィルターもインストールしてください</translation>
    </message>
    <message>
        <source>not found; install the package &quot;cups&quot;</source>
        <translation>見つかりません。パッケージ「cups」をインストールしてください</translation>
    </message>
    <message>
        <source>is empty, so there is nothing to print</source>
        <translation>空のため、印刷するものがありません</translation>
    </message>
    <message>
        <source>only a part of it was read before the job was cancelled</source>
        <translation>中止までに一部しか読み込まれていません</translation>
    </message>
    <message>
        <source>the filter %1 stopped with status %2</source>
        <translation>フィルター %1 がステータス %2 で終了しました</translation>
    </message>
    <message>
        <source>the filter %1 crashed on signal %2</source>
        <translation>フィルター %1 がシグナル %2 で異常終了しました</translation>
    </message>
    <message>
        <source>the filter %1</source>
        <translation>フィルター %1</translation>
    </message>
    <message>
        <source>the filter %1 has insecure permissions</source>
        <translation>フィルター %1 のアクセス権は安全ではありません</translation>
    </message>
    <message>
        <source>the filter %1 not available: %2</source>
        <translation>フィルター %1 は利用できません: %2</translation>
    </message>
    <message>
        <source>its type is unknown; print a PDF, PostScript, text or image file</source>
        <translation>種類が不明です。PDF、PostScript、テキスト、画像ファイルを印刷してください</translation>
    </message>
    <message>
        <source>no filter prints the type %1</source>
        <translation>種類 %1 を印刷するフィルターがありません</translation>
    </message>
    <message>
        <source>the filters ended with status %1</source>
        <translation>フィルターがステータス %1 で終了しました</translation>
    </message>
    <message>
        <source>the print server asks for a password, and none was given</source>
        <translation>プリントサーバーがパスワードを求めていますが、入力されませんでした</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>中止されました</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <translation>パイプが切断されました</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>接続を拒否されました</translation>
    </message>
    <message>
        <source>Connection reset by peer</source>
        <translation>接続が相手からリセットされました</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>接続がタイムアウトしました</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>ファイルが大きすぎます</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>入出力エラーです</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>フォルダーです</translation>
    </message>
    <message>
        <source>Network is unreachable</source>
        <translation>ネットワークに到達できません</translation>
    </message>
    <message>
        <source>No route to host</source>
        <translation>ホストへの経路がありません</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>デバイスに空き領域がありません</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>ファイルやフォルダーがありません</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>フォルダーではありません</translation>
    </message>
    <message>
        <source>Operation now in progress</source>
        <translation>処理がまだ続いています</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>許可されていない操作です</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>許可がありません</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>ファイルシステムは読み込み専用です</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>開いているファイルが多すぎます</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>not a preset: %1</source>
        <translation>プリセットではありません: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be text</source>
        <translation>「%1」は文字列でなければなりません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be an object</source>
        <translation>「%1」はオブジェクトでなければなりません</translation>
    </message>
    <message>
        <source>option &quot;%1&quot; must have a choice as text</source>
        <translation>オプション「%1」の選択は文字列でなければなりません</translation>
    </message>
    <message>
        <source>not a preset: one JSON object expected</source>
        <translation>プリセットではありません: JSON オブジェクトが 1 つ必要です</translation>
    </message>
    <message>
        <source>preset &quot;%1&quot;</source>
        <translation>プリセット「%1」</translation>
    </message>
    <message>
        <source>can&apos;t be made</source>
        <translation>作成できません</translation>
    </message>
    <message>
        <source>the present one is damaged and left as it is (%1); delete it first</source>
        <translation>既存のものは壊れているため、そのまま残します (%1)。先に削除してください</translation>
    </message>
    <message>
        <source>holds a preset of another name: &quot;%1&quot;</source>
        <translation>別の名前のプリセットが入っています:「%1」</translation>
    </message>
    <message>
        <source>there is one of that name already</source>
        <translation>この名前のものは既にあります</translation>
    </message>
    <message>
        <source>preset name</source>
        <translation>プリセット名</translation>
    </message>
    <message>
        <source>is empty; give the preset a name</source>
        <translation>空です。プリセットに名前を付けてください</translation>
    </message>
    <message>
        <source>can&apos;t hold line breaks or control characters</source>
        <translation>改行や制御文字は使えません</translation>
    </message>
    <message>
        <source>the print server asks for a password</source>
        <translation>プリントサーバーがパスワードを求めています</translation>
    </message>
    <message>
        <source>the print server did not accept the password of user &quot;%1&quot;, given %2 times</source>
        <translation>プリントサーバーはユーザー「%1」のパスワードを受け付けませんでした (%2 回入力)</translation>
    </message>
    <message>
        <source>the print server does not give its printer description (%1)</source>
        <translation>プリントサーバーからプリンター記述を取得できません (%1)</translation>
    </message>
    <message>
        <source>names a printer that does not exist: &quot;%1&quot;</source>
        <translation>存在しないプリンターを指しています:「%1」</translation>
    </message>
    <message>
        <source>the print server has no such queue or job</source>
        <translation>プリントサーバーにこのキューやジョブはありません</translation>
    </message>
    <message>
        <source>the print server does not allow it for user &quot;%1&quot;</source>
        <translation>プリントサーバーはユーザー「%1」に許可していません</translation>
    </message>
    <message>
        <source>the queue takes no jobs at present</source>
        <translation>キューは現在ジョブを受け付けていません</translation>
    </message>
    <message>
        <source>the print server gave no answer</source>
        <translation>プリントサーバーから応答がありません</translation>
    </message>
    <message>
        <source>no print server answers there (%1)</source>
        <translation>応答するプリントサーバーがありません (%1)</translation>
    </message>
    <message>
        <source>the print server stopped answering; try again once it is up</source>
        <translation>プリントサーバーの応答が途絶えました。復旧してからやり直してください</translation>
    </message>
    <message>
        <source>the connection to the print server broke (%1)</source>
        <translation>プリントサーバーとの接続が切れました (%1)</translation>
    </message>
    <message>
        <source>not a ticket: JSON expected (%1)</source>
        <translation>チケットではありません: JSON が必要です (%1)</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>真偽値</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>リスト</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>オブジェクト</translation>
    </message>
    <message>
        <source>a number with a fraction</source>
        <translation>小数</translation>
    </message>
    <message>
        <source>not a ticket: one JSON object expected</source>
        <translation>チケットではありません: JSON オブジェクトが 1 つ必要です</translation>
    </message>
    <message>
        <source>key &quot;%1&quot; must be text or an integer, not %2</source>
        <translation>キー「%1」は文字列か整数でなければなりません (現在は%2)</translation>
    </message>
    <message>
        <source>not a page range; write for example 1-3,7</source>
        <translation>ページ範囲ではありません (例: 1-3,7)</translation>
    </message>
    <message>
        <source>not a valid PPD file (%1)</source>
        <translation>有効な PPD ファイルではありません (%1)</translation>
    </message>
    <message>
        <source>&quot;PluginInterface&quot; must be a number</source>
        <translation>「PluginInterface」は数値でなければなりません</translation>
    </message>
    <message>
        <source>made for plug-in interface %1, this program has %2: install the plug-in that belongs to it</source>
        <translation>プラグインインターフェイス %1 用ですが、このプログラムは %2 です。対応するプラグインをインストールしてください</translation>
    </message>
    <message>
        <source>&quot;Executable&quot; must name the plug-in&apos;s code file</source>
        <translation>「Executable」にはプラグインのコードファイルを指定してください</translation>
    </message>
    <message>
        <source>&quot;Executable&quot; must be a file inside the bundle, not &quot;%1&quot;</source>
        <translation>「Executable」は「%1」ではなくバンドル内のファイルでなければなりません</translation>
    </message>
    <message>
        <source>the plug-in&apos;s code is missing</source>
        <translation>プラグインのコードがありません</translation>
    </message>
    <message>
        <source>no such plug-in bundle (a folder)</source>
        <translation>このプラグインバンドル (フォルダー) はありません</translation>
    </message>
    <message>
        <source>&quot;PrincipalClass&quot; must name the plug-in&apos;s class</source>
        <translation>「PrincipalClass」にはプラグインのクラスを指定してください</translation>
    </message>
    <message>
        <source>the plug-in&apos;s code can&apos;t be loaded (%1)</source>
        <translation>プラグインのコードを読み込めません (%1)</translation>
    </message>
    <message>
        <source>has no factory for the class &quot;%1&quot;</source>
        <translation>クラス「%1」のファクトリーがありません</translation>
    </message>
    <message>
        <source>the plug-in&apos;s factory refused its bundle</source>
        <translation>プラグインのファクトリーがバンドルを拒否しました</translation>
    </message>
    <message>
        <source>is larger than 1 MB, as no ticket and no preset is</source>
        <translation>1 MB を超えています。チケットやプリセットがそれほど大きくなることはありません</translation>
    </message>
    <message>
        <source>belongs to another user, whose code would run as yours; a plug-in must be yours or the administrator&apos;s</source>
        <translation>別のユーザーのものであり、そのコードがあなたの権限で実行されてしまいます。プラグインはあなたか管理者のものでなければなりません</translation>
    </message>
    <message>
        <source>can be written by others, whose code would run as yours; take that right from them (chmod go-w)</source>
        <translation>ほかのユーザーが書き込めるため、そのコードがあなたの権限で実行されてしまいます。その権限を取り消してください (chmod go-w)</translation>
    </message>
    <message>
        <source>Bad file descriptor</source>
        <translation>ファイル記述子が無効です</translation>
    </message>
    <message>
        <source>has no page %1: the number of its pages is %2</source>
        <translation>ページ %1 がありません（ページ数は %2）</translation>
    </message>
    <message>
        <source>is the document itself, which would be lost; name another file</source>
        <translation>これは印刷する文書そのもので、失われてしまいます。別のファイルを指定してください</translation>
    </message>
    <message>
        <source>it needs a password; print it from a program that opens it with that password</source>
        <translation>パスワードが必要です。パスワードで開けるプログラムから印刷してください</translation>
    </message>
    <message>
        <source>whoever made it has encrypted it and does not allow that it is printed</source>
        <translation>作成者が暗号化し、印刷を許可していません</translation>
    </message>
    <message>
        <source>%1; print it once more, and its sheets are made on this computer</source>
        <translation>%1。もう一度印刷すると、用紙はこのコンピューターで作成されます</translation>
    </message>
    <message>
        <source>the server&apos;s driver can&apos;t make booklets</source>
        <translation>サーバーのドライバーは小冊子を作成できません</translation>
    </message>
    <message>
        <source>the server lacks the printer&apos;s driver and stops every job</source>
        <translation>サーバーにプリンターのドライバーがないため、すべてのジョブが停止されます</translation>
    </message>
    <message>
        <source>the print server wants it once more; print it from a file instead</source>
        <translation>プリントサーバーがもう一度送るよう求めています。ファイルから印刷してください</translation>
    </message>
    <message>
        <source>the print server sent an answer that cannot be read</source>
        <translation>プリントサーバーから読み取れない応答が届きました</translation>
    </message>
    <message>
        <source>the print server did not come to an end of its answer; try again later, or ask whoever runs it</source>
        <translation>プリントサーバーの応答が終わりませんでした。後でやり直すか、管理者に問い合わせてください</translation>
    </message>
    <message>
        <source>no print server has this name</source>
        <translation>この名前のプリントサーバーはありません</translation>
    </message>
    <message>
        <source>no print server answers there</source>
        <translation>応答するプリントサーバーがありません</translation>
    </message>
    <message>
        <source>the connection to the print server broke</source>
        <translation>プリントサーバーとの接続が切れました</translation>
    </message>
    <message>
        <source>is damaged beyond repair</source>
        <translation>修復できないほど破損しています</translation>
    </message>
    <message>
        <source>has no pages, so there is nothing to print</source>
        <translation>ページがないため、印刷するものがありません</translation>
    </message>
    <message>
        <source>a copy that the filters can open can&apos;t be written; make room for temporary files</source>
        <translation>フィルターが開けるコピーを書き込めません。一時ファイル用の空き容量を確保してください</translation>
    </message>
    <message>
        <source>the sheets of several documents can&apos;t be put into one PDF; print them one by one</source>
        <translation>複数の文書の用紙を1つの PDF にまとめられません。1つずつ印刷してください</translation>
    </message>
    <message>
        <source>no such printer on %1; choose another one</source>
        <translation>%1 にそのようなプリンターはありません。別のものを選択してください</translation>
    </message>
    <message>
        <source>there is no default printer; choose one</source>
        <translation>既定のプリンターがありません。プリンターを選択してください</translation>
    </message>
    <message>
        <source>there is none of that name; choose another one</source>
        <translation>その名前のものはありません。別のものを選択してください</translation>
    </message>
    <message>
        <source>has no side that %1 asks for: the number of its sides is %2</source>
        <translation>%1 で指定された面がありません（面の数は %2）</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a meaning of its own in the list; choose another</source>
        <translation>「%1」は一覧で特別な意味を持ちます。別の名前を選んでください</translation>
    </message>
</context>
<context>
    <name>orvek::GeneralPage</name>
    <message>
        <source>Last page first</source>
        <translation>最後のページから</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>用紙サイズ</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>給紙元</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>用紙の種類</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>印刷の向き</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>1 枚あたりのページ数</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>カラー</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>品質</translation>
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
        <translation>オン</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>As the job</source>
        <translation>ジョブと同じ</translation>
    </message>
    <message>
        <source>%1 pt</source>
        <translation>%1 pt</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>小冊子</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>右とじ</translation>
    </message>
    <message>
        <source>Page borders</source>
        <translation>ページ枠</translation>
    </message>
    <message>
        <source>Gutter</source>
        <translation>とじしろ</translation>
    </message>
    <message>
        <source>Creep</source>
        <translation>クリープ補正</translation>
    </message>
    <message>
        <source>Target paper size</source>
        <translation>出力用紙サイズ</translation>
    </message>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>部数</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>部単位で印刷</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>最後のページから</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>印刷の向き</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>1 枚あたりのページ数</translation>
    </message>
    <message>
        <source>Other settings</source>
        <translation>その他の設定</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>他 %n 件</numerusform>
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
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
</context>
<context>
    <name>orvek::JobBar</name>
    <message>
        <source>&amp;Print</source>
        <translation>印刷(&amp;P)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>&amp;Print to File…</source>
        <translation>ファイルに印刷(&amp;P)…</translation>
    </message>
    <message>
        <source>Stops the job</source>
        <translation>ジョブを中止します</translation>
    </message>
    <message>
        <source>Closes the window without printing</source>
        <translation>印刷せずにウィンドウを閉じます</translation>
    </message>
    <message>
        <source>Stopping the job</source>
        <translation>ジョブを中止しています</translation>
    </message>
</context>
<context>
    <name>orvek::JobDocuments</name>
    <message>
        <source>Choose a file, or drop one here</source>
        <translation>ファイルを選択するか、ここにドロップしてください</translation>
    </message>
    <message>
        <source>Opening…</source>
        <translation>開いています…</translation>
    </message>
    <message>
        <source>Protected by a password</source>
        <translation>パスワードで保護されています</translation>
    </message>
    <message>
        <source>Can&apos;t be printed</source>
        <translation>印刷できません</translation>
    </message>
    <message>
        <source>There is no document yet</source>
        <translation>まだ文書がありません</translation>
    </message>
    <message>
        <source>%1 needs its password</source>
        <translation>%1 にはパスワードが必要です</translation>
    </message>
    <message>
        <source>%1 is damaged beyond repair</source>
        <translation>%1 は修復できないほど破損しています</translation>
    </message>
    <message>
        <source>%1 has no pages</source>
        <translation>%1 にはページがありません</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1 は空です</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read</source>
        <translation>%1 を読み取れません</translation>
    </message>
    <message>
        <source>Enter Password…</source>
        <translation>パスワードを入力…</translation>
    </message>
    <message>
        <source>Choose File…</source>
        <translation>ファイルを選択…</translation>
    </message>
    <message>
        <source>Choose Documents</source>
        <translation>文書の選択</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 ほか %2 件</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>文書</translation>
    </message>
    <message>
        <source>Add Documents</source>
        <translation>文書の追加</translation>
    </message>
</context>
<context>
    <name>orvek::JobNotice</name>
    <message>
        <source>Job %1 on %2 was cancelled</source>
        <translation>%2 のジョブ %1 をキャンセルしました</translation>
    </message>
    <message>
        <source>Sent to %1, job %2</source>
        <translation>%1 に送信しました（ジョブ %2）</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>ジョブをキャンセル</translation>
    </message>
</context>
<context>
    <name>orvek::JobPreview</name>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Previous side</source>
        <translation>前の面</translation>
    </message>
    <message>
        <source>Next side</source>
        <translation>次の面</translation>
    </message>
    <message>
        <source>Several sheets at once (Ctrl and wheel: zoom)</source>
        <translation>複数の用紙を同時に表示 (Ctrl＋ホイールで拡大・縮小)</translation>
    </message>
    <message>
        <source>Several sheets at once</source>
        <translation>複数の用紙を同時に表示</translation>
    </message>
    <message>
        <source>No page of the document is printed.</source>
        <translation>印刷されるページがありません。</translation>
    </message>
    <message>
        <source>Reading the document…</source>
        <translation>文書を読み込んでいます…</translation>
    </message>
    <message>
        <source>The document&apos;s pages are not known: a sample</source>
        <translation>文書のページが不明なため見本を表示</translation>
    </message>
    <message>
        <source>%1 × 1 sheet</source>
        <translation>%1 × 1 枚</translation>
    </message>
    <message>
        <source>1 sheet</source>
        <translation>1 枚</translation>
    </message>
    <message numerus="yes">
        <source>%1 × %n sheets</source>
        <translation>
            <numerusform>%1 × %n 枚</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sheets</source>
        <translation>
            <numerusform>%n 枚</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no document yet: a sample</source>
        <translation>まだ文書がないため見本を表示</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>両面印刷</translation>
    </message>
</context>
<context>
    <name>orvek::JobStrip</name>
    <message>
        <source>Copies</source>
        <translation>部数</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>両面印刷</translation>
    </message>
</context>
<context>
    <name>orvek::JobWarnings</name>
    <message>
        <source>A booklet is printed on both sides, which can&apos;t be combined with %1</source>
        <translation>小冊子は両面に印刷されるため、%1 と組み合わせられません</translation>
    </message>
    <message>
        <source>%1 with copies that are not collated: equal pages would be stapled together</source>
        <translation>%1 と部単位でない印刷の組み合わせ: 同じページどうしがとじられます</translation>
    </message>
    <message>
        <source>A booklet of %1 sheets is more than the printer folds at once: at most %2</source>
        <translation>%1 枚の小冊子は、プリンターが一度に折れる枚数 (最大 %2 枚) を超えています</translation>
    </message>
    <message>
        <source>The document has no page %1: the number of its pages is %2</source>
        <translation>文書にページ %1 がありません（ページ数は %2）</translation>
    </message>
    <message>
        <source>None of the sides that are asked for exists: the number of sides is %1</source>
        <translation>指定された面がありません（面の数は %1）</translation>
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
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>Close the notice</source>
        <translation>お知らせを閉じる</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>問題</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Earlier notice</source>
        <translation>前の通知</translation>
    </message>
    <message>
        <source>Later notice</source>
        <translation>次の通知</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Undo %n steps</source>
        <translation>
            <numerusform>%n 件を元に戻す(&amp;U)</numerusform>
        </translation>
    </message>
    <message>
        <source>Takes back the choice with all that it changed, and what came after it</source>
        <translation>その選択による変更と、その後の変更をすべて取り消します</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>a notice&apos;s place</comment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>再試行</translation>
    </message>
</context>
<context>
    <name>orvek::OptionsModel</name>
    <message>
        <source>Changed; by itself: %1</source>
        <translation>変更あり (既定: %1)</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>選択</translation>
    </message>
</context>
<context>
    <name>orvek::OptionsPage</name>
    <message>
        <source>Only changed</source>
        <translation>変更したもののみ</translation>
    </message>
    <message>
        <source>Set Back</source>
        <translation>既定に戻す</translation>
    </message>
    <message>
        <source>Set All Back</source>
        <translation>すべて既定に戻す</translation>
    </message>
    <message>
        <source>Search options</source>
        <translation>オプションを検索</translation>
    </message>
    <message>
        <source>1 option changed</source>
        <translation>1 個のオプションを変更</translation>
    </message>
    <message>
        <source>No option changed</source>
        <translation>オプションの変更なし</translation>
    </message>
    <message>
        <source>No option found</source>
        <translation>オプションが見つかりません</translation>
    </message>
    <message>
        <source>This printer has no more options</source>
        <translation>このプリンターに他のオプションはありません</translation>
    </message>
    <message numerus="yes">
        <source>%n options changed</source>
        <translation>
            <numerusform>%n 個のオプションを変更</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orvek::OptionsView</name>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Return opens an option&apos;s choices or switches it, Delete sets it back</source>
        <translation>Enter でオプションの選択肢を開くか切り替え、Delete で元に戻します</translation>
    </message>
</context>
<context>
    <name>orvek::OrientationText</name>
    <message>
        <source>Portrait</source>
        <translation>縦</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>横</translation>
    </message>
    <message>
        <source>Portrait, upside down</source>
        <translation>縦 (上下逆)</translation>
    </message>
    <message>
        <source>Landscape, upside down</source>
        <translation>横 (上下逆)</translation>
    </message>
    <message>
        <source>As in the document</source>
        <translation>文書のとおり</translation>
    </message>
</context>
<context>
    <name>orvek::PagesRow</name>
    <message>
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>範囲</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>すべてのページ</translation>
    </message>
    <message>
        <source>A range of pages</source>
        <translation>ページの範囲</translation>
    </message>
    <message>
        <source>Page range</source>
        <translation>ページ範囲</translation>
    </message>
    <message>
        <source>e.g. 1-3, 7</source>
        <translation>例: 1-3, 7</translation>
    </message>
    <message>
        <source>Write which pages to print, for example 1-3, 7</source>
        <translation>印刷するページを 1-3, 7 のように入力してください</translation>
    </message>
</context>
<context>
    <name>orvek::PasswordDialog</name>
    <message>
        <source>The print server %1 asks for a name and a password.</source>
        <translation>プリントサーバー %1 が名前とパスワードを求めています。</translation>
    </message>
    <message>
        <source>The print server did not accept that name and password.</source>
        <translation>プリントサーバーはこの名前とパスワードを受け付けませんでした。</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名前(&amp;N):</translation>
    </message>
    <message>
        <source>&amp;Sign In</source>
        <translation>サインイン(&amp;S)</translation>
    </message>
</context>
<context>
    <name>orvek::PasswordForm</name>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>パスワード(&amp;P):</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>orvek::PresetChooser</name>
    <message>
        <source>Preset</source>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>Save and manage presets</source>
        <translation>プリセットの保存と管理</translation>
    </message>
    <message>
        <source>&amp;Save As…</source>
        <translation>名前を付けて保存(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>名前の変更(&amp;R)…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>前回の設定</translation>
    </message>
    <message>
        <source>Name of the preset:</source>
        <translation>プリセット名:</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>プリセットの保存</translation>
    </message>
    <message>
        <source>There is a preset “%1” already. Replace it?</source>
        <translation>プリセット「%1」は既にあります。置き換えますか？</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>プリセット名の変更</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>プリセットの削除</translation>
    </message>
    <message>
        <source>Delete the preset “%1”?</source>
        <translation>プリセット「%1」を削除しますか？</translation>
    </message>
    <message>
        <source>Remember &amp;Last Settings</source>
        <translation>前回の設定を記憶(&amp;L)</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (変更あり)</translation>
    </message>
</context>
<context>
    <name>orvek::PresetFit</name>
    <message>
        <source>this printer has no option &quot;%1&quot;</source>
        <translation>このプリンターにオプション「%1」はありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is installed equipment, which a preset does not change</source>
        <translation>「%1」は装備品のため、プリセットでは変更されません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of this printer has no choice &quot;%2&quot;</source>
        <translation>このプリンターの「%1」に選択肢「%2」はありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of this printer takes %2</source>
        <translation>このプリンターの「%1」に使える値は %2</translation>
    </message>
    <message>
        <source>this printer makes no booklets</source>
        <translation>このプリンターは小冊子を作成しません</translation>
    </message>
</context>
<context>
    <name>orvek::PrintDialog</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>Print all the same?</source>
        <translation>このまま印刷しますか？</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>印刷(&amp;P)</translation>
    </message>
    <message>
        <source>The job was cancelled.</source>
        <translation>ジョブは中止されました。</translation>
    </message>
    <message>
        <source>It can still be printed into a file: choose File as the printer.</source>
        <translation>ファイルへの印刷はできます。プリンターに「ファイル」を選んでください。</translation>
    </message>
    <message>
        <source>Not everything fits this printer:</source>
        <translation>このプリンターで使えない設定があります:</translation>
    </message>
    <message>
        <source>Not all of the preset fits this printer:</source>
        <translation>このプリンターで使えない設定がプリセットにあります:</translation>
    </message>
    <message>
        <source>Open a Printer Description</source>
        <translation>プリンター記述を開く</translation>
    </message>
    <message>
        <source>Printer descriptions (*.ppd *.ppd.gz)</source>
        <translation>プリンター記述 (*.ppd *.ppd.gz)</translation>
    </message>
    <message>
        <source>the default printer</source>
        <translation>既定のプリンター</translation>
    </message>
    <message>
        <source>Asking %1…</source>
        <translation>%1 に問い合わせ中…</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>%1 を読み込み中…</translation>
    </message>
    <message>
        <source>Banner pages would be left out.</source>
        <translation>バナーページは印刷されません。</translation>
    </message>
    <message>
        <source>The sheets can be made on this computer and sent finished.</source>
        <translation>用紙をこのコンピューターで作成し、完成した状態で送信できます。</translation>
    </message>
    <message>
        <source>&amp;Impose here and print</source>
        <translation>ここで面付けして印刷(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Prepare here and print</source>
        <translation>ここで準備して印刷(&amp;P)</translation>
    </message>
    <message>
        <source>No printer is chosen</source>
        <translation>プリンターが選択されていません</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>文書なし</translation>
    </message>
    <message>
        <source>Printed into %1</source>
        <translation>%1 に出力しました</translation>
    </message>
    <message>
        <source>Sent to %1, job %2</source>
        <translation>%1 に送信しました（ジョブ %2）</translation>
    </message>
    <message>
        <source>The printer is no longer there</source>
        <translation>プリンターはもうありません</translation>
    </message>
    <message>
        <source>%1 is no longer on the print server. Choose another printer.</source>
        <translation>%1 はプリントサーバーにもうありません。別のプリンターを選んでください。</translation>
    </message>
</context>
<context>
    <name>orvek::PrinterChooser</name>
    <message>
        <source>%1 (default)</source>
        <translation>%1 (既定)</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>File (%1)</source>
        <translation>ファイル (%1)</translation>
    </message>
    <message>
        <source>No printers: %1</source>
        <translation>プリンターなし: %1</translation>
    </message>
    <message>
        <source>Prints into a file</source>
        <translation>ファイルに印刷します</translation>
    </message>
    <message>
        <source>File (needs a printer description)</source>
        <translation>ファイル (プリンター記述が必要)</translation>
    </message>
    <message>
        <source>Open Printer Description…</source>
        <translation>プリンター記述を開く…</translation>
    </message>
    <message>
        <source>Choose a printer, or open a printer description</source>
        <translation>プリンターを選ぶか、プリンター記述を開いてください</translation>
    </message>
    <message>
        <source>Asking for the printers…</source>
        <translation>プリンターを問い合わせ中…</translation>
    </message>
    <message>
        <source>No longer on the print server</source>
        <translation>プリントサーバーにはもうありません</translation>
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
        <translation>一致するプリンターはありません</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>Search for name, description or location</source>
        <translation>名前、説明、場所で検索</translation>
    </message>
</context>
<context>
    <name>orvek::ProgressText</name>
    <message>
        <source>Printing…</source>
        <translation>印刷中…</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>%1 ページ目</translation>
    </message>
    <message>
        <source>Printing: %1</source>
        <translation>印刷中: %1</translation>
    </message>
    <message>
        <source>Printing document %1 of %2: %3</source>
        <translation>文書 %1/%2 を印刷中: %3</translation>
    </message>
</context>
<context>
    <name>orvek::Queue</name>
    <message>
        <source>Connecting to the printer</source>
        <translation>プリンターに接続中</translation>
    </message>
    <message>
        <source>A cover is open</source>
        <translation>カバーが開いています</translation>
    </message>
    <message>
        <source>The printer&apos;s filter can be changed by others and is not run</source>
        <translation>プリンターのフィルターが他の人に変更可能なため実行されません</translation>
    </message>
    <message>
        <source>The printer&apos;s filter is missing</source>
        <translation>プリンターのフィルターがありません</translation>
    </message>
    <message>
        <source>A door is open</source>
        <translation>ドアが開いています</translation>
    </message>
    <message>
        <source>A paper tray is missing</source>
        <translation>給紙トレイがありません</translation>
    </message>
    <message>
        <source>Toner or ink is empty</source>
        <translation>トナーまたはインクがありません</translation>
    </message>
    <message>
        <source>Toner or ink is low</source>
        <translation>トナーまたはインクが残りわずかです</translation>
    </message>
    <message>
        <source>The waste container is almost full</source>
        <translation>廃トナー容器がもうすぐいっぱいです</translation>
    </message>
    <message>
        <source>The waste container is full</source>
        <translation>廃トナー容器がいっぱいです</translation>
    </message>
    <message>
        <source>Out of paper</source>
        <translation>用紙切れ</translation>
    </message>
    <message>
        <source>Paper jam</source>
        <translation>紙づまり</translation>
    </message>
    <message>
        <source>Paper is low</source>
        <translation>用紙が残りわずかです</translation>
    </message>
    <message>
        <source>Paper has to be put in</source>
        <translation>用紙を入れてください</translation>
    </message>
    <message>
        <source>Stopping</source>
        <translation>停止処理中</translation>
    </message>
    <message>
        <source>The printer is offline</source>
        <translation>プリンターがオフラインです</translation>
    </message>
    <message>
        <source>The printer reports a problem</source>
        <translation>プリンターに問題があります</translation>
    </message>
    <message>
        <source>The output tray is almost full</source>
        <translation>排紙トレイがもうすぐいっぱいです</translation>
    </message>
    <message>
        <source>The output tray is full</source>
        <translation>排紙トレイがいっぱいです</translation>
    </message>
    <message>
        <source>The output tray is missing</source>
        <translation>排紙トレイがありません</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>The printer is switched off</source>
        <translation>プリンターの電源が切れています</translation>
    </message>
    <message>
        <source>The printer&apos;s memory is full</source>
        <translation>プリンターのメモリーがいっぱいです</translation>
    </message>
    <message>
        <source>Part of the printer is stopped</source>
        <translation>プリンターの一部が停止しています</translation>
    </message>
    <message>
        <source>The printer does not answer</source>
        <translation>プリンターが応答しません</translation>
    </message>
    <message>
        <source>Toner is empty</source>
        <translation>トナーがありません</translation>
    </message>
    <message>
        <source>Toner is low</source>
        <translation>トナーが残りわずかです</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>印刷中</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>停止中</translation>
    </message>
    <message>
        <source>State unknown</source>
        <translation>状態不明</translation>
    </message>
    <message>
        <source>, takes no jobs</source>
        <translation>、ジョブを受け付けません</translation>
    </message>
</context>
<context>
    <name>orvek::SavePlace</name>
    <message>
        <source>Printed</source>
        <translation>印刷済み</translation>
    </message>
    <message>
        <source>Print into a File</source>
        <translation>ファイルに印刷</translation>
    </message>
    <message>
        <source>PDF of the sheets (*.pdf)</source>
        <translation>用紙の PDF (*.pdf)</translation>
    </message>
    <message>
        <source>As the printer takes it (*.ps *.prn)</source>
        <translation>プリンターの言語 (*.ps *.prn)</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>Printed into %1.</source>
        <translation>%1 に印刷しました。</translation>
    </message>
    <message>
        <source>&amp;Show in Folder</source>
        <translation>フォルダーに表示(&amp;S)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>orvek::SessionJob</name>
    <message>
        <source>Booklet was set to Off: it can&apos;t be combined with several pages per sheet</source>
        <translation>小冊子を「オフ」に変更しました: 用紙ごとの複数ページとは併用できません</translation>
    </message>
</context>
<context>
    <name>orvek::SessionView</name>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>設定の一覧</translation>
    </message>
    <message>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>その他のオプション</translation>
    </message>
</context>
<context>
    <name>orvek::SheetsView</name>
    <message>
        <source>%1, back</source>
        <translation>%1 裏</translation>
    </message>
</context>
<context>
    <name>orvek::SpokenSide</name>
    <message>
        <source>page %1</source>
        <translation>%1 ページ</translation>
    </message>
    <message>
        <source>page %1 left</source>
        <translation>左に %1 ページ</translation>
    </message>
    <message>
        <source>page %1 right</source>
        <translation>右に %1 ページ</translation>
    </message>
    <message>
        <source>blank</source>
        <translation>白紙</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>用紙 %1 / %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation>用紙 %1 / %2、表</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation>用紙 %1 / %2、裏</translation>
    </message>
    <message>
        <source>1 staple</source>
        <translation>ホチキス 1 か所</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>Sheet %1, front: %2</source>
        <translation>用紙 %1、表: %2</translation>
    </message>
    <message>
        <source>Sheet %1, back: %2</source>
        <translation>用紙 %1、裏: %2</translation>
    </message>
    <message>
        <source>saddle fold</source>
        <translation>中とじ折り</translation>
    </message>
    <message>
        <source>single fold</source>
        <translation>二つ折り</translation>
    </message>
    <message numerus="yes">
        <source>%n staples</source>
        <translation>
            <numerusform>ホチキス %n か所</numerusform>
        </translation>
    </message>
    <message>
        <source>1 hole</source>
        <translation>パンチ穴 1 個</translation>
    </message>
    <message numerus="yes">
        <source>%n holes</source>
        <translation>
            <numerusform>パンチ穴 %n 個</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>orvek::StandardNames</name>
    <message>
        <source>One staple, portrait</source>
        <translation>1か所（縦）</translation>
    </message>
    <message>
        <source>One staple, landscape</source>
        <translation>1か所（横）</translation>
    </message>
    <message>
        <source>Two staples, portrait</source>
        <translation>2か所（縦）</translation>
    </message>
    <message>
        <source>Two staples, landscape</source>
        <translation>2か所（横）</translation>
    </message>
    <message>
        <source>Saddle stitch</source>
        <translation>中とじ</translation>
    </message>
    <message>
        <source>Accordion fold</source>
        <translation>蛇腹折り</translation>
    </message>
    <message>
        <source>Double gate fold</source>
        <translation>両観音折り</translation>
    </message>
    <message>
        <source>Gate fold</source>
        <translation>観音折り</translation>
    </message>
    <message>
        <source>Half fold</source>
        <translation>半折り</translation>
    </message>
    <message>
        <source>Half Z fold</source>
        <translation>片袖折り</translation>
    </message>
    <message>
        <source>Left gate fold</source>
        <translation>左片観音折り</translation>
    </message>
    <message>
        <source>Letter fold</source>
        <translation>内三つ折り</translation>
    </message>
    <message>
        <source>Parallel fold</source>
        <translation>平行折り</translation>
    </message>
    <message>
        <source>Poster fold</source>
        <translation>ポスター折り</translation>
    </message>
    <message>
        <source>Right gate fold</source>
        <translation>右片観音折り</translation>
    </message>
    <message>
        <source>Z fold</source>
        <translation>Z折り</translation>
    </message>
    <message>
        <source>Engineering Z fold</source>
        <translation>図面Z折り</translation>
    </message>
    <message>
        <source>Saddle fold</source>
        <translation>中とじ折り</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>ステープル</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>パンチ</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>表紙</translation>
    </message>
    <message>
        <source>Binding</source>
        <translation>製本</translation>
    </message>
    <message>
        <source>Edge stitch</source>
        <translation>端とじ</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>折り</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>断裁</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>小冊子</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>オフセット</translation>
    </message>
    <message>
        <source>Coating</source>
        <translation>コーティング</translation>
    </message>
    <message>
        <source>Laminating</source>
        <translation>ラミネート</translation>
    </message>
    <message>
        <source>Two staples</source>
        <translation>2か所とじ</translation>
    </message>
    <message>
        <source>Three staples</source>
        <translation>3か所とじ</translation>
    </message>
    <message>
        <source>One staple</source>
        <translation>1か所とじ</translation>
    </message>
    <message>
        <source>Two holes</source>
        <translation>2穴</translation>
    </message>
    <message>
        <source>Three holes</source>
        <translation>3穴</translation>
    </message>
    <message>
        <source>Four holes</source>
        <translation>4穴</translation>
    </message>
    <message>
        <source>Many holes</source>
        <translation>多穴</translation>
    </message>
    <message>
        <source>One hole</source>
        <translation>1穴</translation>
    </message>
    <message>
        <source>After each page</source>
        <translation>1ページごと</translation>
    </message>
    <message>
        <source>After each document</source>
        <translation>1文書ごと</translation>
    </message>
    <message>
        <source>After each copy</source>
        <translation>1部ごと</translation>
    </message>
    <message>
        <source>After the job</source>
        <translation>ジョブの終わり</translation>
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
        <translation>%1（%2）</translation>
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
        <translation>%1 × %2 mm</translation>
    </message>
    <message>
        <source>Paper size for manual feed</source>
        <translation>手差しの用紙サイズ</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>用紙サイズ</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>カスタム</translation>
    </message>
    <message>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>Installed equipment</source>
        <translation>装着オプション</translation>
    </message>
    <message>
        <source>Further options</source>
        <translation>その他のオプション</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>両面印刷</translation>
    </message>
    <message>
        <source>Upper tray</source>
        <translation>上段トレイ</translation>
    </message>
    <message>
        <source>Middle tray</source>
        <translation>中段トレイ</translation>
    </message>
    <message>
        <source>Lower tray</source>
        <translation>下段トレイ</translation>
    </message>
    <message>
        <source>Rear tray</source>
        <translation>後ろトレイ</translation>
    </message>
    <message>
        <source>Side tray</source>
        <translation>側面トレイ</translation>
    </message>
    <message>
        <source>Left tray</source>
        <translation>左トレイ</translation>
    </message>
    <message>
        <source>Right tray</source>
        <translation>右トレイ</translation>
    </message>
    <message>
        <source>Center tray</source>
        <translation>中央トレイ</translation>
    </message>
    <message>
        <source>Manual feed</source>
        <translation>手差し給紙</translation>
    </message>
    <message>
        <source>Bypass tray</source>
        <translation>手差しトレイ</translation>
    </message>
    <message>
        <source>Multipurpose tray</source>
        <translation>多目的トレイ</translation>
    </message>
    <message>
        <source>Large-capacity tray</source>
        <translation>大容量トレイ</translation>
    </message>
    <message>
        <source>Envelope feeder</source>
        <translation>封筒フィーダー</translation>
    </message>
    <message>
        <source>Main tray</source>
        <translation>メイントレイ</translation>
    </message>
    <message>
        <source>Alternate tray</source>
        <translation>代替トレイ</translation>
    </message>
    <message>
        <source>Photo tray</source>
        <translation>フォトトレイ</translation>
    </message>
    <message>
        <source>Disc tray</source>
        <translation>ディスクトレイ</translation>
    </message>
    <message>
        <source>Cassette</source>
        <translation>カセット</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>ロール紙</translation>
    </message>
    <message>
        <source>Tractor feed</source>
        <translation>トラクターフィード</translation>
    </message>
    <message>
        <source>Tray %1</source>
        <translation>トレイ %1</translation>
    </message>
    <message>
        <source>Cassette %1</source>
        <translation>カセット %1</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>ロール紙 %1</translation>
    </message>
    <message>
        <source>Standard tray</source>
        <translation>標準トレイ</translation>
    </message>
    <message>
        <source>Face down</source>
        <translation>裏向き排紙</translation>
    </message>
    <message>
        <source>Face up</source>
        <translation>表向き排紙</translation>
    </message>
    <message>
        <source>Stacker</source>
        <translation>スタッカー</translation>
    </message>
    <message>
        <source>Mailbox</source>
        <translation>メールボックス</translation>
    </message>
    <message>
        <source>Finisher tray</source>
        <translation>フィニッシャートレイ</translation>
    </message>
    <message>
        <source>Booklet tray</source>
        <translation>小冊子トレイ</translation>
    </message>
    <message>
        <source>Stacker %1</source>
        <translation>スタッカー %1</translation>
    </message>
    <message>
        <source>Mailbox %1</source>
        <translation>メールボックス %1</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>普通紙</translation>
    </message>
    <message>
        <source>Recycled</source>
        <translation>再生紙</translation>
    </message>
    <message>
        <source>Letterhead</source>
        <translation>レターヘッド</translation>
    </message>
    <message>
        <source>Prepunched</source>
        <translation>穴あき紙</translation>
    </message>
    <message>
        <source>Preprinted</source>
        <translation>印刷済み用紙</translation>
    </message>
    <message>
        <source>Bond</source>
        <translation>ボンド紙</translation>
    </message>
    <message>
        <source>Heavy</source>
        <translation>厚紙</translation>
    </message>
    <message>
        <source>Thin</source>
        <translation>薄紙</translation>
    </message>
    <message>
        <source>Coated</source>
        <translation>コート紙</translation>
    </message>
    <message>
        <source>Card stock</source>
        <translation>カード紙</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>ラベル紙</translation>
    </message>
    <message>
        <source>Transparencies</source>
        <translation>OHPフィルム</translation>
    </message>
    <message>
        <source>Envelopes</source>
        <translation>封筒</translation>
    </message>
    <message>
        <source>Glossy</source>
        <translation>光沢紙</translation>
    </message>
    <message>
        <source>Photo paper</source>
        <translation>写真用紙</translation>
    </message>
    <message>
        <source>High-gloss photo paper</source>
        <translation>写真用紙（高光沢）</translation>
    </message>
    <message>
        <source>Matte photo paper</source>
        <translation>写真用紙（マット）</translation>
    </message>
    <message>
        <source>Semi-gloss photo paper</source>
        <translation>写真用紙（半光沢）</translation>
    </message>
    <message>
        <source>Matte</source>
        <translation>マット紙</translation>
    </message>
    <message>
        <source>Colored</source>
        <translation>色紙</translation>
    </message>
    <message>
        <source>Rough</source>
        <translation>粗い用紙</translation>
    </message>
    <message>
        <source>Tab stock</source>
        <translation>タブ紙</translation>
    </message>
    <message>
        <source>Vellum</source>
        <translation>ベラム紙</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>連続紙</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>ディスク</translation>
    </message>
    <message>
        <source>Fine paper</source>
        <translation>上質紙</translation>
    </message>
    <message>
        <source>Cotton</source>
        <translation>コットン紙</translation>
    </message>
    <message>
        <source>US Letter</source>
        <translation>レター</translation>
    </message>
    <message>
        <source>US Legal</source>
        <translation>リーガル</translation>
    </message>
    <message>
        <source>Tabloid</source>
        <translation>タブロイド</translation>
    </message>
    <message>
        <source>Ledger</source>
        <translation>レジャー</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>ステートメント</translation>
    </message>
    <message>
        <source>Executive</source>
        <translation>エグゼクティブ</translation>
    </message>
    <message>
        <source>Folio</source>
        <translation>フォリオ</translation>
    </message>
    <message>
        <source>Oficio</source>
        <translation>オフィシオ</translation>
    </message>
    <message>
        <source>Postcard</source>
        <translation>郵便はがき</translation>
    </message>
    <message>
        <source>Double postcard</source>
        <translation>往復はがき</translation>
    </message>
    <message>
        <source>Envelope No. 10</source>
        <translation>封筒 10号</translation>
    </message>
    <message>
        <source>Envelope No. 9</source>
        <translation>封筒 9号</translation>
    </message>
    <message>
        <source>Envelope DL</source>
        <translation>封筒 DL</translation>
    </message>
    <message>
        <source>Envelope C4</source>
        <translation>封筒 C4</translation>
    </message>
    <message>
        <source>Envelope C5</source>
        <translation>封筒 C5</translation>
    </message>
    <message>
        <source>Envelope C6</source>
        <translation>封筒 C6</translation>
    </message>
    <message>
        <source>Envelope B5</source>
        <translation>封筒 B5</translation>
    </message>
    <message>
        <source>Envelope Monarch</source>
        <translation>封筒 モナーク</translation>
    </message>
    <message>
        <source>Envelope A2</source>
        <translation>封筒 A2</translation>
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
        <translation>A3ノビ</translation>
    </message>
    <message>
        <source>3 × 5 in</source>
        <translation>3 × 5 インチ</translation>
    </message>
    <message>
        <source>4 × 6 in</source>
        <translation>4 × 6 インチ</translation>
    </message>
    <message>
        <source>5 × 7 in</source>
        <translation>5 × 7 インチ</translation>
    </message>
    <message>
        <source>5 × 8 in</source>
        <translation>5 × 8 インチ</translation>
    </message>
    <message>
        <source>8 × 10 in</source>
        <translation>8 × 10 インチ</translation>
    </message>
    <message>
        <source>US Foolscap</source>
        <translation>フールスキャップ</translation>
    </message>
    <message>
        <source>%1, borderless</source>
        <translation>%1（フチなし）</translation>
    </message>
    <message>
        <source>%1, rotated</source>
        <translation>%1（回転）</translation>
    </message>
    <message>
        <source>%1, oversize</source>
        <translation>%1（ノビ）</translation>
    </message>
    <message>
        <source>%1, large margins</source>
        <translation>%1（余白大）</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>長辺とじ</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>短辺とじ</translation>
    </message>
    <message>
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>白黒</translation>
    </message>
    <message>
        <source>Pure black and white</source>
        <translation>白黒（2値）</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>カラー</translation>
    </message>
    <message>
        <source>Color (CMYK)</source>
        <translation>カラー（CMYK）</translation>
    </message>
    <message>
        <source>Color (CMY)</source>
        <translation>カラー（CMY）</translation>
    </message>
    <message>
        <source>Color (Adobe RGB)</source>
        <translation>カラー（Adobe RGB）</translation>
    </message>
    <message>
        <source>Color (16 bits)</source>
        <translation>カラー（16ビット）</translation>
    </message>
    <message>
        <source>Black and white (16 bits)</source>
        <translation>白黒（16ビット）</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>下書き</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>High</source>
        <translation>きれい</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>最高</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>高速</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>スタンダード</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>First page first</source>
        <translation>先頭ページから</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>最後のページから</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Printer’s default</source>
        <translation>プリンターの既定値</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>給紙元</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>用紙の種類</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>品質</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>排紙先</translation>
    </message>
    <message>
        <source>Stapling</source>
        <translation>ステープル</translation>
    </message>
    <message>
        <source>Folding</source>
        <translation>折り</translation>
    </message>
    <message>
        <source>Hole punch</source>
        <translation>パンチ</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>仕上げ</translation>
    </message>
    <message>
        <source>Cutting</source>
        <translation>カット</translation>
    </message>
    <message>
        <source>Page order</source>
        <translation>ページの順序</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>解像度</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>部単位で印刷</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>1 枚あたりのページ数</translation>
    </message>
    <message>
        <source>Tray switching</source>
        <translation>トレイ切り替え</translation>
    </message>
    <message>
        <source>Mirror image</source>
        <translation>左右反転</translation>
    </message>
    <message>
        <source>Negative</source>
        <translation>ネガ</translation>
    </message>
    <message>
        <source>Smoothing</source>
        <translation>スムージング</translation>
    </message>
    <message>
        <source>Slip sheets</source>
        <translation>合紙</translation>
    </message>
    <message>
        <source>Toner saving</source>
        <translation>トナー節約</translation>
    </message>
    <message>
        <source>Paper color</source>
        <translation>用紙の色</translation>
    </message>
    <message>
        <source>Paper weight</source>
        <translation>用紙の厚さ</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>すべてのページ</translation>
    </message>
    <message>
        <source>Odd pages only</source>
        <translation>奇数ページのみ</translation>
    </message>
    <message>
        <source>Even pages only</source>
        <translation>偶数ページのみ</translation>
    </message>
    <message>
        <source>Fit to page</source>
        <translation>用紙に合わせる</translation>
    </message>
    <message>
        <source>Fill the page</source>
        <translation>用紙全体に拡大</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>実際のサイズ</translation>
    </message>
    <message>
        <source>Left to right, then down</source>
        <translation>左から右、次に下</translation>
    </message>
    <message>
        <source>Right to left, then down</source>
        <translation>右から左、次に下</translation>
    </message>
    <message>
        <source>Left to right, then up</source>
        <translation>左から右、次に上</translation>
    </message>
    <message>
        <source>Right to left, then up</source>
        <translation>右から左、次に上</translation>
    </message>
    <message>
        <source>Down, then left to right</source>
        <translation>上から下、次に左から右</translation>
    </message>
    <message>
        <source>Down, then right to left</source>
        <translation>上から下、次に右から左</translation>
    </message>
    <message>
        <source>Up, then left to right</source>
        <translation>下から上、次に左から右</translation>
    </message>
    <message>
        <source>Up, then right to left</source>
        <translation>下から上、次に右から左</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>フォーム</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>機密扱い</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>親展</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>秘</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>極秘</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>機密扱いなし</translation>
    </message>
    <message>
        <source>At once</source>
        <translation>すぐに</translation>
    </message>
    <message>
        <source>When released</source>
        <translation>解放されたとき</translation>
    </message>
    <message>
        <source>By day</source>
        <translation>日中</translation>
    </message>
    <message>
        <source>In the evening</source>
        <translation>夕方</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>夜間</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>週末</translation>
    </message>
    <message>
        <source>In the second shift</source>
        <translation>第 2 シフト</translation>
    </message>
    <message>
        <source>In the third shift</source>
        <translation>第 3 シフト</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>Urgent</source>
        <translation>緊急</translation>
    </message>
    <message>
        <source>Odd and even pages</source>
        <translation>奇数・偶数ページ</translation>
    </message>
    <message>
        <source>Adjust size</source>
        <translation>拡大・縮小</translation>
    </message>
    <message>
        <source>Sequence on the sheet</source>
        <translation>用紙上の順序</translation>
    </message>
    <message>
        <source>Banner page</source>
        <translation>バナーページ</translation>
    </message>
    <message>
        <source>Start printing</source>
        <translation>印刷の開始</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>優先度</translation>
    </message>
</context>
<context>
    <name>orvek::SummaryLines</name>
    <message>
        <source>Copies</source>
        <translation>部数</translation>
    </message>
    <message>
        <source>Set by set</source>
        <translation>部ごと</translation>
    </message>
    <message>
        <source>Page by page</source>
        <translation>ページごと</translation>
    </message>
    <message>
        <source>Order of copies</source>
        <translation>部数の印刷順</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>印刷の向き</translation>
    </message>
    <message>
        <source>Page order</source>
        <translation>ページの順序</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>最後のページから</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>1 枚あたりのページ数</translation>
    </message>
</context>
<context>
    <name>orvek::SummaryView</name>
    <message>
        <source>%1: %2 (changed)</source>
        <translation>%1: %2 (変更あり)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>設定の一覧</translation>
    </message>
    <message>
        <source>All settings of the job; those that were changed come first</source>
        <translation>ジョブのすべての設定 (変更したものが先)</translation>
    </message>
</context>
<context>
    <name>orvek::TicketBounds</name>
    <message>
        <source>Copies was set to 1: less is no job</source>
        <translation>部数を 1 にしました。これより少なくはできません</translation>
    </message>
    <message>
        <source>Copies was set to %1: no job makes more</source>
        <translation>部数を %1 にしました。これより多くはできません</translation>
    </message>
</context>
<context>
    <name>orvek::UnderstoodNote</name>
    <message>
        <source>%1 still applies</source>
        <translation>%1 のままです</translation>
    </message>
    <message>
        <source>“%1” was read as %2</source>
        <translation>「%1」は %2 と読み取られました</translation>
    </message>
</context>
<context>
    <name>orvek::Wording</name>
    <message>
        <source>%1 was set to %2: it can&apos;t be combined with %3</source>
        <translation>%1 を「%2」に変更しました: 「%3」とは併用できません</translation>
    </message>
    <message>
        <source>%1 was not set to %2: it can&apos;t be combined with %3</source>
        <translation>%1 は「%2」にできません: 「%3」とは併用できません</translation>
    </message>
</context>
</TS>
