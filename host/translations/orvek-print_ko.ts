<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>orvek::Availability</name>
    <message>
        <source>needs the %1, which this printer doesn&apos;t have</source>
        <translation>이 프린터에 없는 %1이(가) 필요합니다</translation>
    </message>
    <message>
        <source>not with %1</source>
        <translation>%1와(과) 함께 쓸 수 없음</translation>
    </message>
    <message>
        <source>%1 would be set to %2</source>
        <translation>%1이(가) %2(으)로 바뀝니다</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1(%2)</translation>
    </message>
    <message>
        <source>a booklet is printed on both sides</source>
        <translation>소책자는 양면으로 인쇄됩니다</translation>
    </message>
</context>
<context>
    <name>orvek::ChooserRow</name>
    <message>
        <source>P&amp;rinter:</source>
        <translation>프린터(&amp;R):</translation>
    </message>
    <message>
        <source>Pr&amp;eset:</source>
        <translation>사전 설정(&amp;E):</translation>
    </message>
</context>
<context>
    <name>orvek::CopiesRow</name>
    <message>
        <source>Copies</source>
        <translation>매수</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>한 부씩 인쇄</translation>
    </message>
    <message>
        <source>Whole sets one after the other, not all copies of each page</source>
        <translation>페이지별로 모두 인쇄하지 않고 한 부씩 차례로 인쇄합니다</translation>
    </message>
    <message>
        <source>From 1 to %1; %2 applies</source>
        <translation>1에서 %1까지. %2이(가) 적용됩니다</translation>
    </message>
    <message>
        <source>%1 still applies</source>
        <translation>%1이(가) 계속 적용됩니다</translation>
    </message>
</context>
<context>
    <name>orvek::CustomSizeRow</name>
    <message>
        <source>Paper width</source>
        <translation>용지 너비</translation>
    </message>
    <message>
        <source>Paper height</source>
        <translation>용지 높이</translation>
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
        <translation>%1: 숫자만</translation>
    </message>
    <message>
        <source>%1: %2 characters</source>
        <translation>%1: %2자</translation>
    </message>
    <message>
        <source>%1: %2 to %3 characters</source>
        <translation>%1: %2~%3자</translation>
    </message>
    <message>
        <source>%1: %2 to %3</source>
        <translation>%1: %2~%3</translation>
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
        <translation>%1~%2</translation>
    </message>
</context>
<context>
    <name>orvek::DocumentHeader</name>
    <message>
        <source>1 page</source>
        <translation>1페이지</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%n페이지</numerusform>
        </translation>
    </message>
    <message>
        <source>Document</source>
        <translation>문서</translation>
    </message>
</context>
<context>
    <name>orvek::DocumentInfo</name>
    <message>
        <source>(stdin)</source>
        <translation>(표준 입력)</translation>
    </message>
</context>
<context>
    <name>orvek::DocumentMenu</name>
    <message>
        <source>Add and remove documents</source>
        <translation>문서 추가 및 제거</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>파일 추가(&amp;A)…</translation>
    </message>
    <message>
        <source>&amp;Choose Other Files…</source>
        <translation>다른 파일 선택(&amp;C)…</translation>
    </message>
    <message>
        <source>Remove %1. %2</source>
        <translation>%1. %2 제거</translation>
    </message>
</context>
<context>
    <name>orvek::DocumentPassword</name>
    <message>
        <source>That password does not open %1.</source>
        <translation>그 암호로는 %1을(를) 열 수 없습니다.</translation>
    </message>
    <message>
        <source>%1 is protected by a password.</source>
        <translation>%1은(는) 암호로 보호되어 있습니다.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>열기(&amp;O)</translation>
    </message>
</context>
<context>
    <name>orvek::Failure</name>
    <message>
        <source>the print server asks for a password, and none was given</source>
        <translation>프린트 서버가 암호를 요구하지만 입력하지 않았습니다</translation>
    </message>
    <message>
        <source>not found, so no booklet can be made; install this filter, too</source>
        <translation>찾을 수 없어 소책자를 만들 수 없습니다. 이 필터도 설치하세요</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>폴더입니다</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>표준 입력</translation>
    </message>
    <message>
        <source>is empty, so there is nothing to print</source>
        <translation>비어 있어 인쇄할 것이 없습니다</translation>
    </message>
    <message>
        <source>can be printed once only, and &quot;-&quot; is given more than once</source>
        <translation>한 번만 인쇄할 수 있는데 “-”이(가) 여러 번 지정되었습니다</translation>
    </message>
    <message>
        <source>is a folder, not a PPD file</source>
        <translation>PPD 파일이 아니라 폴더입니다</translation>
    </message>
    <message>
        <source>has no page %1: the number of its pages is %2</source>
        <translation>%1페이지가 없습니다. 전체 페이지 수는 %2입니다</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>표준 출력</translation>
    </message>
    <message>
        <source>is the document itself, which would be lost; name another file</source>
        <translation>문서 자체이므로 내용을 잃게 됩니다. 다른 파일을 지정하세요</translation>
    </message>
    <message>
        <source>not found; install the package &quot;cups&quot;</source>
        <translation>찾을 수 없습니다. “cups” 패키지를 설치하세요</translation>
    </message>
    <message>
        <source>the filter %1 stopped with status %2</source>
        <translation>필터 %1이(가) 상태 %2(으)로 멈췄습니다</translation>
    </message>
    <message>
        <source>the filter %1 crashed on signal %2</source>
        <translation>필터 %1이(가) 시그널 %2(으)로 비정상 종료했습니다</translation>
    </message>
    <message>
        <source>the filter %1</source>
        <translation>필터 %1</translation>
    </message>
    <message>
        <source>the filter %1 has insecure permissions</source>
        <translation>필터 %1의 권한이 안전하지 않습니다</translation>
    </message>
    <message>
        <source>the filter %1 not available: %2</source>
        <translation>필터 %1을(를) 사용할 수 없습니다: %2</translation>
    </message>
    <message>
        <source>it needs a password; print it from a program that opens it with that password</source>
        <translation>암호가 필요합니다. 그 암호로 여는 프로그램에서 인쇄하세요</translation>
    </message>
    <message>
        <source>whoever made it has encrypted it and does not allow that it is printed</source>
        <translation>만든 사람이 암호화했으며 인쇄를 허용하지 않습니다</translation>
    </message>
    <message>
        <source>its type is unknown; print a PDF, PostScript, text or image file</source>
        <translation>형식을 알 수 없습니다. PDF, PostScript, 텍스트 또는 이미지 파일을 인쇄하세요</translation>
    </message>
    <message>
        <source>no filter prints the type %1</source>
        <translation>%1 형식을 인쇄하는 필터가 없습니다</translation>
    </message>
    <message>
        <source>the filters ended with status %1</source>
        <translation>필터가 상태 %1(으)로 끝났습니다</translation>
    </message>
    <message>
        <source>the filters made no output of it</source>
        <translation>필터가 아무것도 만들어 내지 않았습니다</translation>
    </message>
    <message>
        <source>only a part of it was read before the job was cancelled</source>
        <translation>작업이 취소되기 전에 일부만 읽었습니다</translation>
    </message>
    <message>
        <source>job</source>
        <translation>작업</translation>
    </message>
    <message>
        <source>is empty, so no job has been sent</source>
        <translation>비어 있어 작업을 보내지 않았습니다</translation>
    </message>
    <message>
        <source>%1; print it once more, and its sheets are made on this computer</source>
        <translation>%1. 다시 인쇄하면 이 컴퓨터에서 용지를 만듭니다</translation>
    </message>
    <message>
        <source>the print server wants it once more; print it from a file instead</source>
        <translation>프린트 서버가 다시 요구합니다. 파일에서 인쇄하세요</translation>
    </message>
    <message>
        <source>the server&apos;s driver can&apos;t make booklets</source>
        <translation>서버의 드라이버가 소책자를 만들 수 없습니다</translation>
    </message>
    <message>
        <source>the server lacks the printer&apos;s driver and stops every job</source>
        <translation>서버에 프린터 드라이버가 없어 모든 작업을 멈춥니다</translation>
    </message>
    <message>
        <source>&quot;PluginInterface&quot; must be a number</source>
        <translation>“PluginInterface”는 숫자여야 합니다</translation>
    </message>
    <message>
        <source>made for plug-in interface %1, this program has %2: install the plug-in that belongs to it</source>
        <translation>플러그인 인터페이스 %1용인데 이 프로그램은 %2입니다. 맞는 플러그인을 설치하세요</translation>
    </message>
    <message>
        <source>&quot;Executable&quot; must name the plug-in&apos;s code file</source>
        <translation>“Executable”은 플러그인의 코드 파일을 가리켜야 합니다</translation>
    </message>
    <message>
        <source>&quot;Executable&quot; must be a file inside the bundle, not &quot;%1&quot;</source>
        <translation>“Executable”은 번들 안의 파일이어야 하며 “%1”은(는) 안 됩니다</translation>
    </message>
    <message>
        <source>the plug-in&apos;s code is missing</source>
        <translation>플러그인의 코드가 없습니다</translation>
    </message>
    <message>
        <source>no such plug-in bundle (a folder)</source>
        <translation>그런 플러그인 번들(폴더)이 없습니다</translation>
    </message>
    <message>
        <source>&quot;PrincipalClass&quot; must name the plug-in&apos;s class</source>
        <translation>“PrincipalClass”는 플러그인의 클래스를 가리켜야 합니다</translation>
    </message>
    <message>
        <source>the plug-in&apos;s code can&apos;t be loaded (%1)</source>
        <translation>플러그인의 코드를 불러올 수 없습니다(%1)</translation>
    </message>
    <message>
        <source>has no factory for the class &quot;%1&quot;</source>
        <translation>클래스 “%1”의 팩토리가 없습니다</translation>
    </message>
    <message>
        <source>the plug-in&apos;s factory refused its bundle</source>
        <translation>플러그인의 팩토리가 번들을 거부했습니다</translation>
    </message>
    <message>
        <source>belongs to another user, whose code would run as yours; a plug-in must be yours or the administrator&apos;s</source>
        <translation>다른 사용자의 것이라 그 코드가 내 권한으로 실행됩니다. 플러그인은 본인이나 관리자의 것이어야 합니다</translation>
    </message>
    <message>
        <source>can be written by others, whose code would run as yours; take that right from them (chmod go-w)</source>
        <translation>다른 사람이 쓸 수 있어 그 코드가 내 권한으로 실행됩니다. 그 권한을 없애세요(chmod go-w)</translation>
    </message>
    <message>
        <source>not a valid PPD file (%1)</source>
        <translation>올바른 PPD 파일이 아닙니다(%1)</translation>
    </message>
    <message>
        <source>not a preset: %1</source>
        <translation>사전 설정이 아닙니다: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be text</source>
        <translation>“%1”은(는) 텍스트여야 합니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be an object</source>
        <translation>“%1”은(는) 객체여야 합니다</translation>
    </message>
    <message>
        <source>option &quot;%1&quot; must have a choice as text</source>
        <translation>옵션 “%1”의 선택 항목은 텍스트여야 합니다</translation>
    </message>
    <message>
        <source>not a preset: one JSON object expected</source>
        <translation>사전 설정이 아닙니다. JSON 객체 하나가 필요합니다</translation>
    </message>
    <message>
        <source>preset name</source>
        <translation>사전 설정 이름</translation>
    </message>
    <message>
        <source>is empty; give the preset a name</source>
        <translation>비어 있습니다. 사전 설정에 이름을 붙이세요</translation>
    </message>
    <message>
        <source>can&apos;t hold line breaks or control characters</source>
        <translation>줄 바꿈이나 제어 문자를 포함할 수 없습니다</translation>
    </message>
    <message>
        <source>preset &quot;%1&quot;</source>
        <translation>사전 설정 “%1”</translation>
    </message>
    <message>
        <source>can&apos;t be made</source>
        <translation>만들 수 없습니다</translation>
    </message>
    <message>
        <source>the present one is damaged and left as it is (%1); delete it first</source>
        <translation>기존 항목이 손상되어 그대로 두었습니다(%1). 먼저 삭제하세요</translation>
    </message>
    <message>
        <source>holds a preset of another name: &quot;%1&quot;</source>
        <translation>다른 이름의 사전 설정이 들어 있습니다: “%1”</translation>
    </message>
    <message>
        <source>there is one of that name already</source>
        <translation>같은 이름이 이미 있습니다</translation>
    </message>
    <message>
        <source>the print server asks for a password</source>
        <translation>프린트 서버가 암호를 요구합니다</translation>
    </message>
    <message>
        <source>the print server did not accept the password of user &quot;%1&quot;, given %2 times</source>
        <translation>프린트 서버가 사용자 “%1”의 암호를 받아들이지 않았습니다(%2번 입력)</translation>
    </message>
    <message>
        <source>the print server sent an answer that cannot be read</source>
        <translation>프린트 서버가 읽을 수 없는 응답을 보냈습니다</translation>
    </message>
    <message>
        <source>the print server stopped answering; try again once it is up</source>
        <translation>프린트 서버가 더 이상 응답하지 않습니다. 다시 켜지면 시도하세요</translation>
    </message>
    <message>
        <source>the print server did not come to an end of its answer; try again later, or ask whoever runs it</source>
        <translation>프린트 서버가 응답을 끝내지 못했습니다. 나중에 다시 시도하거나 관리자에게 문의하세요</translation>
    </message>
    <message>
        <source>names a printer that does not exist: &quot;%1&quot;</source>
        <translation>없는 프린터를 가리킵니다: “%1”</translation>
    </message>
    <message>
        <source>the print server does not give its printer description (%1)</source>
        <translation>프린트 서버가 프린터 설명을 주지 않습니다(%1)</translation>
    </message>
    <message>
        <source>no print server has this name</source>
        <translation>그런 이름의 프린트 서버가 없습니다</translation>
    </message>
    <message>
        <source>no print server answers there</source>
        <translation>그곳에서 응답하는 프린트 서버가 없습니다</translation>
    </message>
    <message>
        <source>no print server answers there (%1)</source>
        <translation>그곳에서 응답하는 프린트 서버가 없습니다(%1)</translation>
    </message>
    <message>
        <source>the connection to the print server broke</source>
        <translation>프린트 서버와의 연결이 끊겼습니다</translation>
    </message>
    <message>
        <source>the connection to the print server broke (%1)</source>
        <translation>프린트 서버와의 연결이 끊겼습니다(%1)</translation>
    </message>
    <message>
        <source>the print server has no such queue or job</source>
        <translation>프린트 서버에 그런 대기열이나 작업이 없습니다</translation>
    </message>
    <message>
        <source>the print server does not allow it for user &quot;%1&quot;</source>
        <translation>프린트 서버가 사용자 “%1”에게 허용하지 않습니다</translation>
    </message>
    <message>
        <source>the queue takes no jobs at present</source>
        <translation>대기열이 지금은 작업을 받지 않습니다</translation>
    </message>
    <message>
        <source>the print server gave no answer</source>
        <translation>프린트 서버가 응답하지 않았습니다</translation>
    </message>
    <message>
        <source>not a page range; write for example 1-3,7</source>
        <translation>페이지 범위가 아닙니다. 예: 1-3,7</translation>
    </message>
    <message>
        <source>not a ticket: JSON expected (%1)</source>
        <translation>티켓이 아닙니다. JSON이 필요합니다(%1)</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>참 또는 거짓</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>목록</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>객체</translation>
    </message>
    <message>
        <source>a number with a fraction</source>
        <translation>소수점이 있는 숫자</translation>
    </message>
    <message>
        <source>not a ticket: one JSON object expected</source>
        <translation>티켓이 아닙니다. JSON 객체 하나가 필요합니다</translation>
    </message>
    <message>
        <source>key &quot;%1&quot; must be text or an integer, not %2</source>
        <translation>키 “%1”은(는) 텍스트나 정수여야 하며 %2은(는) 안 됩니다</translation>
    </message>
    <message>
        <source>is larger than 1 MB, as no ticket and no preset is</source>
        <translation>1 MB보다 큽니다. 티켓이나 사전 설정은 그렇게 클 수 없습니다</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>취소됨</translation>
    </message>
    <message>
        <source>Bad file descriptor</source>
        <translation>파일 디스크립터가 잘못되었습니다</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <translation>파이프가 끊어졌습니다</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>연결이 거부되었습니다</translation>
    </message>
    <message>
        <source>Connection reset by peer</source>
        <translation>상대방이 연결을 끊었습니다</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>연결 시간이 초과되었습니다</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>파일이 너무 큽니다</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>입출력 오류</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>폴더입니다</translation>
    </message>
    <message>
        <source>Network is unreachable</source>
        <translation>네트워크에 연결할 수 없습니다</translation>
    </message>
    <message>
        <source>No route to host</source>
        <translation>호스트로 가는 경로가 없습니다</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>장치에 남은 공간이 없습니다</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>파일이나 폴더가 없습니다</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>폴더가 아닙니다</translation>
    </message>
    <message>
        <source>Operation now in progress</source>
        <translation>작업이 아직 진행 중입니다</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>허용되지 않은 작업입니다</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>권한이 없습니다</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>파일 시스템이 읽기 전용입니다</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>열린 파일이 너무 많습니다</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>is damaged beyond repair</source>
        <translation>손상되어 복구할 수 없습니다</translation>
    </message>
    <message>
        <source>has no pages, so there is nothing to print</source>
        <translation>페이지가 없어 인쇄할 것이 없습니다</translation>
    </message>
    <message>
        <source>a copy that the filters can open can&apos;t be written; make room for temporary files</source>
        <translation>필터가 열 수 있는 사본을 쓸 수 없습니다. 임시 파일을 위한 공간을 확보하세요</translation>
    </message>
    <message>
        <source>the sheets of several documents can&apos;t be put into one PDF; print them one by one</source>
        <translation>여러 문서의 용지를 하나의 PDF에 넣을 수 없습니다. 하나씩 인쇄하세요</translation>
    </message>
    <message>
        <source>no such printer on %1; choose another one</source>
        <translation>%1에 그런 프린터가 없습니다. 다른 프린터를 선택하세요</translation>
    </message>
    <message>
        <source>there is no default printer; choose one</source>
        <translation>기본 프린터가 없습니다. 프린터를 선택하세요</translation>
    </message>
    <message>
        <source>there is none of that name; choose another one</source>
        <translation>그런 이름이 없습니다. 다른 것을 선택하세요</translation>
    </message>
    <message>
        <source>has no side that %1 asks for: the number of its sides is %2</source>
        <translation>%1(으)로 지정한 면이 없습니다. 전체 면 수는 %2입니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a meaning of its own in the list; choose another</source>
        <translation>“%1”은(는) 목록에서 따로 쓰는 이름입니다. 다른 이름을 선택하세요</translation>
    </message>
</context>
<context>
    <name>orvek::GeneralPage</name>
    <message>
        <source>Last page first</source>
        <translation>마지막 페이지부터</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>용지 크기</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>용지 공급</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>용지 종류</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>방향</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>장당 페이지 수</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>컬러</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>품질</translation>
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
        <translation>켬</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>끔</translation>
    </message>
    <message>
        <source>As the job</source>
        <translation>작업과 같음</translation>
    </message>
    <message>
        <source>%1 pt</source>
        <translation>%1 pt</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>소책자</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>오른쪽에서 왼쪽</translation>
    </message>
    <message>
        <source>Page borders</source>
        <translation>페이지 테두리</translation>
    </message>
    <message>
        <source>Gutter</source>
        <translation>제본 여백</translation>
    </message>
    <message>
        <source>Creep</source>
        <translation>크리프 보정</translation>
    </message>
    <message>
        <source>Target paper size</source>
        <translation>대상 용지 크기</translation>
    </message>
    <message>
        <source>All</source>
        <translation>모두</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>매수</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>한 부씩 인쇄</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>페이지</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>마지막 페이지부터</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>방향</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>장당 페이지 수</translation>
    </message>
    <message>
        <source>Other settings</source>
        <translation>기타 설정</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n개 더</numerusform>
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
        <translation>실행 취소</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>다시 실행</translation>
    </message>
</context>
<context>
    <name>orvek::JobBar</name>
    <message>
        <source>&amp;Print</source>
        <translation>인쇄(&amp;P)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>진행 상황</translation>
    </message>
    <message>
        <source>&amp;Print to File…</source>
        <translation>파일로 인쇄(&amp;P)…</translation>
    </message>
    <message>
        <source>Stops the job</source>
        <translation>작업을 멈춥니다</translation>
    </message>
    <message>
        <source>Closes the window without printing</source>
        <translation>인쇄하지 않고 창을 닫습니다</translation>
    </message>
    <message>
        <source>Stopping the job</source>
        <translation>작업을 멈추는 중</translation>
    </message>
</context>
<context>
    <name>orvek::JobDocuments</name>
    <message>
        <source>Choose a file, or drop one here</source>
        <translation>파일을 선택하거나 여기에 놓으세요</translation>
    </message>
    <message>
        <source>Opening…</source>
        <translation>여는 중…</translation>
    </message>
    <message>
        <source>Protected by a password</source>
        <translation>암호로 보호됨</translation>
    </message>
    <message>
        <source>Can&apos;t be printed</source>
        <translation>인쇄할 수 없음</translation>
    </message>
    <message>
        <source>There is no document yet</source>
        <translation>아직 문서가 없습니다</translation>
    </message>
    <message>
        <source>%1 needs its password</source>
        <translation>%1에 암호가 필요합니다</translation>
    </message>
    <message>
        <source>%1 is damaged beyond repair</source>
        <translation>%1이(가) 손상되어 복구할 수 없습니다</translation>
    </message>
    <message>
        <source>%1 has no pages</source>
        <translation>%1에 페이지가 없습니다</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>%1이(가) 비어 있습니다</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read</source>
        <translation>%1을(를) 읽을 수 없습니다</translation>
    </message>
    <message>
        <source>Enter Password…</source>
        <translation>암호 입력…</translation>
    </message>
    <message>
        <source>Choose File…</source>
        <translation>파일 선택…</translation>
    </message>
    <message>
        <source>Choose Documents</source>
        <translation>문서 선택</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 외 %2개</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>문서</translation>
    </message>
    <message>
        <source>Add Documents</source>
        <translation>문서 추가</translation>
    </message>
</context>
<context>
    <name>orvek::JobNotice</name>
    <message>
        <source>Job %1 on %2 was cancelled</source>
        <translation>%2의 작업 %1이(가) 취소되었습니다</translation>
    </message>
    <message>
        <source>Sent to %1, job %2</source>
        <translation>%1(으)로 보냄, 작업 %2</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>작업 취소</translation>
    </message>
</context>
<context>
    <name>orvek::JobPreview</name>
    <message>
        <source>Preview</source>
        <translation>미리보기</translation>
    </message>
    <message>
        <source>Previous side</source>
        <translation>이전 면</translation>
    </message>
    <message>
        <source>Next side</source>
        <translation>다음 면</translation>
    </message>
    <message>
        <source>Several sheets at once (Ctrl and wheel: zoom)</source>
        <translation>여러 장 함께 보기(Ctrl+휠: 확대/축소)</translation>
    </message>
    <message>
        <source>Several sheets at once</source>
        <translation>여러 장 함께 보기</translation>
    </message>
    <message>
        <source>No page of the document is printed.</source>
        <translation>인쇄할 문서 페이지가 없습니다.</translation>
    </message>
    <message>
        <source>Reading the document…</source>
        <translation>문서를 읽는 중…</translation>
    </message>
    <message>
        <source>The document&apos;s pages are not known: a sample</source>
        <translation>문서 페이지를 알 수 없음: 견본</translation>
    </message>
    <message>
        <source>%1 × 1 sheet</source>
        <translation>%1 × 1장</translation>
    </message>
    <message numerus="yes">
        <source>%1 × %n sheets</source>
        <translation>
            <numerusform>%1 × %n장</numerusform>
        </translation>
    </message>
    <message>
        <source>1 sheet</source>
        <translation>1장</translation>
    </message>
    <message numerus="yes">
        <source>%n sheets</source>
        <translation>
            <numerusform>%n장</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no document yet: a sample</source>
        <translation>아직 문서가 없음: 견본</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>양면</translation>
    </message>
</context>
<context>
    <name>orvek::JobStrip</name>
    <message>
        <source>Copies</source>
        <translation>매수</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>페이지</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>양면</translation>
    </message>
</context>
<context>
    <name>orvek::JobWarnings</name>
    <message>
        <source>%1 with copies that are not collated: equal pages would be stapled together</source>
        <translation>한 부씩 인쇄하지 않으면서 %1: 같은 페이지끼리 묶입니다</translation>
    </message>
    <message>
        <source>A booklet of %1 sheets is more than the printer folds at once: at most %2</source>
        <translation>%1장짜리 소책자는 프린터가 한 번에 접을 수 있는 양을 넘습니다. 최대 %2장입니다</translation>
    </message>
    <message>
        <source>A booklet is printed on both sides, which can&apos;t be combined with %1</source>
        <translation>소책자는 양면으로 인쇄되므로 %1와(과) 함께 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>The document has no page %1: the number of its pages is %2</source>
        <translation>문서에 %1페이지가 없습니다. 전체 페이지 수는 %2입니다</translation>
    </message>
    <message>
        <source>None of the sides that are asked for exists: the number of sides is %1</source>
        <translation>지정한 면이 없습니다. 전체 면 수는 %1입니다</translation>
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
        <translation>실행 취소(&amp;U)</translation>
    </message>
    <message>
        <source>Close the notice</source>
        <translation>알림 닫기</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>문제</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>Earlier notice</source>
        <translation>이전 알림</translation>
    </message>
    <message>
        <source>Later notice</source>
        <translation>다음 알림</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Undo %n steps</source>
        <translation>
            <numerusform>%n단계 실행 취소(&amp;U)</numerusform>
        </translation>
    </message>
    <message>
        <source>Takes back the choice with all that it changed, and what came after it</source>
        <translation>선택과 그로 인한 모든 변경, 그 뒤의 변경까지 되돌립니다</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>a notice&apos;s place</comment>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>다시 시도</translation>
    </message>
</context>
<context>
    <name>orvek::OptionsModel</name>
    <message>
        <source>Changed; by itself: %1</source>
        <translation>변경됨, 원래 값: %1</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>옵션</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>선택 항목</translation>
    </message>
</context>
<context>
    <name>orvek::OptionsPage</name>
    <message>
        <source>Only changed</source>
        <translation>변경된 것만</translation>
    </message>
    <message>
        <source>Set Back</source>
        <translation>되돌리기</translation>
    </message>
    <message>
        <source>Set All Back</source>
        <translation>모두 되돌리기</translation>
    </message>
    <message>
        <source>Search options</source>
        <translation>옵션 검색</translation>
    </message>
    <message>
        <source>1 option changed</source>
        <translation>옵션 1개 변경됨</translation>
    </message>
    <message numerus="yes">
        <source>%n options changed</source>
        <translation>
            <numerusform>옵션 %n개 변경됨</numerusform>
        </translation>
    </message>
    <message>
        <source>No option changed</source>
        <translation>변경된 옵션 없음</translation>
    </message>
    <message>
        <source>No option found</source>
        <translation>찾은 옵션 없음</translation>
    </message>
    <message>
        <source>This printer has no more options</source>
        <translation>이 프린터에는 다른 옵션이 없습니다</translation>
    </message>
</context>
<context>
    <name>orvek::OptionsView</name>
    <message>
        <source>Options</source>
        <translation>옵션</translation>
    </message>
    <message>
        <source>Return opens an option&apos;s choices or switches it, Delete sets it back</source>
        <translation>Enter 키는 옵션의 선택 항목을 열거나 전환하고, Delete 키는 되돌립니다</translation>
    </message>
</context>
<context>
    <name>orvek::OrientationText</name>
    <message>
        <source>Portrait</source>
        <translation>세로</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>가로</translation>
    </message>
    <message>
        <source>Portrait, upside down</source>
        <translation>세로, 뒤집힘</translation>
    </message>
    <message>
        <source>Landscape, upside down</source>
        <translation>가로, 뒤집힘</translation>
    </message>
    <message>
        <source>As in the document</source>
        <translation>문서와 같음</translation>
    </message>
</context>
<context>
    <name>orvek::PagesRow</name>
    <message>
        <source>All</source>
        <translation>모두</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>범위</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>모든 페이지</translation>
    </message>
    <message>
        <source>A range of pages</source>
        <translation>페이지 범위 지정</translation>
    </message>
    <message>
        <source>Page range</source>
        <translation>페이지 범위</translation>
    </message>
    <message>
        <source>e.g. 1-3, 7</source>
        <translation>예: 1-3, 7</translation>
    </message>
    <message>
        <source>Write which pages to print, for example 1-3, 7</source>
        <translation>인쇄할 페이지를 입력하세요. 예: 1-3, 7</translation>
    </message>
</context>
<context>
    <name>orvek::PasswordDialog</name>
    <message>
        <source>The print server %1 asks for a name and a password.</source>
        <translation>프린트 서버 %1이(가) 이름과 암호를 요구합니다.</translation>
    </message>
    <message>
        <source>The print server did not accept that name and password.</source>
        <translation>프린트 서버가 그 이름과 암호를 받아들이지 않았습니다.</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>이름(&amp;N):</translation>
    </message>
    <message>
        <source>&amp;Sign In</source>
        <translation>로그인(&amp;S)</translation>
    </message>
</context>
<context>
    <name>orvek::PasswordForm</name>
    <message>
        <source>Password</source>
        <translation>암호</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>암호(&amp;P):</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
</context>
<context>
    <name>orvek::PresetChooser</name>
    <message>
        <source>Preset</source>
        <translation>사전 설정</translation>
    </message>
    <message>
        <source>Save and manage presets</source>
        <translation>사전 설정 저장 및 관리</translation>
    </message>
    <message>
        <source>&amp;Save As…</source>
        <translation>다른 이름으로 저장(&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>이름 바꾸기(&amp;R)…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>삭제(&amp;D)</translation>
    </message>
    <message>
        <source>None</source>
        <translation>없음</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>마지막 사용</translation>
    </message>
    <message>
        <source>Name of the preset:</source>
        <translation>사전 설정 이름:</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>사전 설정 저장</translation>
    </message>
    <message>
        <source>There is a preset “%1” already. Replace it?</source>
        <translation>사전 설정 “%1”이(가) 이미 있습니다. 바꿀까요?</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>사전 설정 이름 바꾸기</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>사전 설정 삭제</translation>
    </message>
    <message>
        <source>Delete the preset “%1”?</source>
        <translation>사전 설정 “%1”을(를) 삭제할까요?</translation>
    </message>
    <message>
        <source>Remember &amp;Last Settings</source>
        <translation>마지막 설정 기억(&amp;L)</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (변경됨)</translation>
    </message>
</context>
<context>
    <name>orvek::PresetFit</name>
    <message>
        <source>this printer has no option &quot;%1&quot;</source>
        <translation>이 프린터에는 “%1” 옵션이 없습니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is installed equipment, which a preset does not change</source>
        <translation>“%1”은(는) 설치된 장비이므로 사전 설정으로 바뀌지 않습니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of this printer has no choice &quot;%2&quot;</source>
        <translation>이 프린터의 “%1”에는 “%2” 선택 항목이 없습니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of this printer takes %2</source>
        <translation>이 프린터의 “%1”에 쓸 수 있는 값: %2</translation>
    </message>
    <message>
        <source>this printer makes no booklets</source>
        <translation>이 프린터는 소책자를 만들지 못합니다</translation>
    </message>
</context>
<context>
    <name>orvek::PrintDialog</name>
    <message>
        <source>the default printer</source>
        <translation>기본 프린터</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>인쇄</translation>
    </message>
    <message>
        <source>Print all the same?</source>
        <translation>그래도 인쇄할까요?</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>인쇄(&amp;P)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>The sheets can be made on this computer and sent finished.</source>
        <translation>이 컴퓨터에서 용지를 완성하여 보낼 수 있습니다.</translation>
    </message>
    <message>
        <source>Banner pages would be left out.</source>
        <translation>배너 페이지는 빠집니다.</translation>
    </message>
    <message>
        <source>&amp;Impose here and print</source>
        <translation>여기서 터잡기 후 인쇄(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Prepare here and print</source>
        <translation>여기서 준비 후 인쇄(&amp;P)</translation>
    </message>
    <message>
        <source>The job was cancelled.</source>
        <translation>작업이 취소되었습니다.</translation>
    </message>
    <message>
        <source>It can still be printed into a file: choose File as the printer.</source>
        <translation>파일로는 인쇄할 수 있습니다. 프린터로 파일을 선택하세요.</translation>
    </message>
    <message>
        <source>Asking %1…</source>
        <translation>%1에 묻는 중…</translation>
    </message>
    <message>
        <source>Open a Printer Description</source>
        <translation>프린터 설명 열기</translation>
    </message>
    <message>
        <source>Printer descriptions (*.ppd *.ppd.gz)</source>
        <translation>프린터 설명 (*.ppd *.ppd.gz)</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>%1 읽는 중…</translation>
    </message>
    <message>
        <source>Not everything fits this printer:</source>
        <translation>일부 설정은 이 프린터에 맞지 않습니다:</translation>
    </message>
    <message>
        <source>Not all of the preset fits this printer:</source>
        <translation>사전 설정의 일부는 이 프린터에 맞지 않습니다:</translation>
    </message>
    <message>
        <source>No printer is chosen</source>
        <translation>선택한 프린터가 없습니다</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>문서 없음</translation>
    </message>
    <message>
        <source>Printed into %1</source>
        <translation>%1에 인쇄했습니다</translation>
    </message>
    <message>
        <source>Sent to %1, job %2</source>
        <translation>%1(으)로 보냄, 작업 %2</translation>
    </message>
    <message>
        <source>The printer is no longer there</source>
        <translation>프린터가 더 이상 없습니다</translation>
    </message>
    <message>
        <source>%1 is no longer on the print server. Choose another printer.</source>
        <translation>%1이(가) 더 이상 프린트 서버에 없습니다. 다른 프린터를 선택하세요.</translation>
    </message>
</context>
<context>
    <name>orvek::PrinterChooser</name>
    <message>
        <source>%1 (default)</source>
        <translation>%1(기본)</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>프린터</translation>
    </message>
    <message>
        <source>File</source>
        <translation>파일</translation>
    </message>
    <message>
        <source>File (%1)</source>
        <translation>파일(%1)</translation>
    </message>
    <message>
        <source>File (needs a printer description)</source>
        <translation>파일(프린터 설명 필요)</translation>
    </message>
    <message>
        <source>No printers: %1</source>
        <translation>프린터 없음: %1</translation>
    </message>
    <message>
        <source>Open Printer Description…</source>
        <translation>프린터 설명 열기…</translation>
    </message>
    <message>
        <source>Prints into a file</source>
        <translation>파일로 인쇄합니다</translation>
    </message>
    <message>
        <source>Choose a printer, or open a printer description</source>
        <translation>프린터를 선택하거나 프린터 설명을 여세요</translation>
    </message>
    <message>
        <source>Asking for the printers…</source>
        <translation>프린터를 묻는 중…</translation>
    </message>
    <message>
        <source>No longer on the print server</source>
        <translation>더 이상 프린트 서버에 없음</translation>
    </message>
</context>
<context>
    <name>orvek::PrinterModel</name>
    <message>
        <source>used lately</source>
        <translation>최근 사용</translation>
    </message>
</context>
<context>
    <name>orvek::PrinterPopup</name>
    <message>
        <source>No printer matches</source>
        <translation>일치하는 프린터가 없음</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>다시 시도</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>프린터</translation>
    </message>
    <message>
        <source>Search for name, description or location</source>
        <translation>이름, 설명 또는 위치 검색</translation>
    </message>
</context>
<context>
    <name>orvek::ProgressText</name>
    <message>
        <source>Printing…</source>
        <translation>인쇄 중…</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>%1페이지</translation>
    </message>
    <message>
        <source>Printing: %1</source>
        <translation>인쇄 중: %1</translation>
    </message>
    <message>
        <source>Printing document %1 of %2: %3</source>
        <translation>문서 %1/%2 인쇄 중: %3</translation>
    </message>
</context>
<context>
    <name>orvek::Queue</name>
    <message>
        <source>Connecting to the printer</source>
        <translation>프린터에 연결하는 중</translation>
    </message>
    <message>
        <source>A cover is open</source>
        <translation>덮개가 열려 있습니다</translation>
    </message>
    <message>
        <source>The printer&apos;s filter can be changed by others and is not run</source>
        <translation>다른 사람이 프린터의 필터를 바꿀 수 있어 실행하지 않습니다</translation>
    </message>
    <message>
        <source>The printer&apos;s filter is missing</source>
        <translation>프린터의 필터가 없습니다</translation>
    </message>
    <message>
        <source>A door is open</source>
        <translation>문이 열려 있습니다</translation>
    </message>
    <message>
        <source>A paper tray is missing</source>
        <translation>용지함이 없습니다</translation>
    </message>
    <message>
        <source>Toner or ink is empty</source>
        <translation>토너나 잉크가 없습니다</translation>
    </message>
    <message>
        <source>Toner or ink is low</source>
        <translation>토너나 잉크가 부족합니다</translation>
    </message>
    <message>
        <source>The waste container is almost full</source>
        <translation>폐토너 통이 거의 찼습니다</translation>
    </message>
    <message>
        <source>The waste container is full</source>
        <translation>폐토너 통이 찼습니다</translation>
    </message>
    <message>
        <source>Out of paper</source>
        <translation>용지 없음</translation>
    </message>
    <message>
        <source>Paper jam</source>
        <translation>용지 걸림</translation>
    </message>
    <message>
        <source>Paper is low</source>
        <translation>용지 부족</translation>
    </message>
    <message>
        <source>Paper has to be put in</source>
        <translation>용지를 넣어야 합니다</translation>
    </message>
    <message>
        <source>Stopping</source>
        <translation>멈추는 중</translation>
    </message>
    <message>
        <source>The printer is offline</source>
        <translation>프린터가 오프라인입니다</translation>
    </message>
    <message>
        <source>The printer reports a problem</source>
        <translation>프린터에 문제가 있습니다</translation>
    </message>
    <message>
        <source>The output tray is almost full</source>
        <translation>출력 용지함이 거의 찼습니다</translation>
    </message>
    <message>
        <source>The output tray is full</source>
        <translation>출력 용지함이 찼습니다</translation>
    </message>
    <message>
        <source>The output tray is missing</source>
        <translation>출력 용지함이 없습니다</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>일시 중지됨</translation>
    </message>
    <message>
        <source>The printer is switched off</source>
        <translation>프린터가 꺼져 있습니다</translation>
    </message>
    <message>
        <source>The printer&apos;s memory is full</source>
        <translation>프린터의 메모리가 찼습니다</translation>
    </message>
    <message>
        <source>Part of the printer is stopped</source>
        <translation>프린터의 일부가 멈췄습니다</translation>
    </message>
    <message>
        <source>The printer does not answer</source>
        <translation>프린터가 응답하지 않습니다</translation>
    </message>
    <message>
        <source>Toner is empty</source>
        <translation>토너가 없습니다</translation>
    </message>
    <message>
        <source>Toner is low</source>
        <translation>토너가 부족합니다</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>대기 중</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>인쇄 중</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>멈춤</translation>
    </message>
    <message>
        <source>State unknown</source>
        <translation>상태를 알 수 없음</translation>
    </message>
    <message>
        <source>, takes no jobs</source>
        <translation>, 작업을 받지 않음</translation>
    </message>
</context>
<context>
    <name>orvek::SavePlace</name>
    <message>
        <source>Printed</source>
        <translation>인쇄됨</translation>
    </message>
    <message>
        <source>Print into a File</source>
        <translation>파일로 인쇄</translation>
    </message>
    <message>
        <source>PDF of the sheets (*.pdf)</source>
        <translation>용지의 PDF (*.pdf)</translation>
    </message>
    <message>
        <source>As the printer takes it (*.ps *.prn)</source>
        <translation>프린터가 받는 형식 (*.ps *.prn)</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>인쇄</translation>
    </message>
    <message>
        <source>Printed into %1.</source>
        <translation>%1에 인쇄했습니다.</translation>
    </message>
    <message>
        <source>&amp;Show in Folder</source>
        <translation>폴더에서 보기(&amp;S)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
</context>
<context>
    <name>orvek::SessionJob</name>
    <message>
        <source>Booklet was set to Off: it can&apos;t be combined with several pages per sheet</source>
        <translation>소책자가 “끔”(으)로 바뀌었습니다. 장당 여러 페이지와 함께 쓸 수 없습니다</translation>
    </message>
</context>
<context>
    <name>orvek::SessionView</name>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>요약</translation>
    </message>
    <message>
        <source>General</source>
        <translation>일반</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>추가 옵션</translation>
    </message>
</context>
<context>
    <name>orvek::SheetsView</name>
    <message>
        <source>%1, back</source>
        <translation>%1, 뒷면</translation>
    </message>
</context>
<context>
    <name>orvek::SpokenSide</name>
    <message>
        <source>page %1</source>
        <translation>%1페이지</translation>
    </message>
    <message>
        <source>page %1 left</source>
        <translation>왼쪽 %1페이지</translation>
    </message>
    <message>
        <source>page %1 right</source>
        <translation>오른쪽 %1페이지</translation>
    </message>
    <message>
        <source>blank</source>
        <translation>빈 면</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>%2장 중 %1번째 장</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation>%2장 중 %1번째 장, 앞면</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation>%2장 중 %1번째 장, 뒷면</translation>
    </message>
    <message>
        <source>1 staple</source>
        <translation>스테이플 1개</translation>
    </message>
    <message numerus="yes">
        <source>%n staples</source>
        <translation>
            <numerusform>스테이플 %n개</numerusform>
        </translation>
    </message>
    <message>
        <source>1 hole</source>
        <translation>구멍 1개</translation>
    </message>
    <message numerus="yes">
        <source>%n holes</source>
        <translation>
            <numerusform>구멍 %n개</numerusform>
        </translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Sheet %1, front: %2</source>
        <translation>%1번째 장, 앞면: %2</translation>
    </message>
    <message>
        <source>Sheet %1, back: %2</source>
        <translation>%1번째 장, 뒷면: %2</translation>
    </message>
    <message>
        <source>saddle fold</source>
        <translation>중철 접기</translation>
    </message>
    <message>
        <source>single fold</source>
        <translation>한 번 접기</translation>
    </message>
</context>
<context>
    <name>orvek::StandardNames</name>
    <message>
        <source>One staple, portrait</source>
        <translation>1개소, 세로</translation>
    </message>
    <message>
        <source>One staple, landscape</source>
        <translation>1개소, 가로</translation>
    </message>
    <message>
        <source>Two staples, portrait</source>
        <translation>2개소, 세로</translation>
    </message>
    <message>
        <source>Two staples, landscape</source>
        <translation>2개소, 가로</translation>
    </message>
    <message>
        <source>Saddle stitch</source>
        <translation>중철</translation>
    </message>
    <message>
        <source>Accordion fold</source>
        <translation>아코디언 접기</translation>
    </message>
    <message>
        <source>Double gate fold</source>
        <translation>이중 대문 접기</translation>
    </message>
    <message>
        <source>Gate fold</source>
        <translation>대문 접기</translation>
    </message>
    <message>
        <source>Half fold</source>
        <translation>반으로 접기</translation>
    </message>
    <message>
        <source>Half Z fold</source>
        <translation>반 Z 접기</translation>
    </message>
    <message>
        <source>Left gate fold</source>
        <translation>왼쪽 대문 접기</translation>
    </message>
    <message>
        <source>Letter fold</source>
        <translation>편지 접기</translation>
    </message>
    <message>
        <source>Parallel fold</source>
        <translation>평행 접기</translation>
    </message>
    <message>
        <source>Poster fold</source>
        <translation>포스터 접기</translation>
    </message>
    <message>
        <source>Right gate fold</source>
        <translation>오른쪽 대문 접기</translation>
    </message>
    <message>
        <source>Z fold</source>
        <translation>Z 접기</translation>
    </message>
    <message>
        <source>Engineering Z fold</source>
        <translation>도면 Z 접기</translation>
    </message>
    <message>
        <source>Saddle fold</source>
        <translation>중철 접기</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>스테이플</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>펀치</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>표지</translation>
    </message>
    <message>
        <source>Binding</source>
        <translation>제본</translation>
    </message>
    <message>
        <source>Edge stitch</source>
        <translation>가장자리 철</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>접기</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>재단</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>소책자</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>오프셋</translation>
    </message>
    <message>
        <source>Coating</source>
        <translation>코팅</translation>
    </message>
    <message>
        <source>Laminating</source>
        <translation>라미네이팅</translation>
    </message>
    <message>
        <source>Two staples</source>
        <translation>2개소</translation>
    </message>
    <message>
        <source>Three staples</source>
        <translation>3개소</translation>
    </message>
    <message>
        <source>One staple</source>
        <translation>1개소</translation>
    </message>
    <message>
        <source>Two holes</source>
        <translation>2공</translation>
    </message>
    <message>
        <source>Three holes</source>
        <translation>3공</translation>
    </message>
    <message>
        <source>Four holes</source>
        <translation>4공</translation>
    </message>
    <message>
        <source>Many holes</source>
        <translation>다공</translation>
    </message>
    <message>
        <source>One hole</source>
        <translation>1공</translation>
    </message>
    <message>
        <source>After each page</source>
        <translation>페이지마다</translation>
    </message>
    <message>
        <source>After each document</source>
        <translation>문서마다</translation>
    </message>
    <message>
        <source>After each copy</source>
        <translation>한 부마다</translation>
    </message>
    <message>
        <source>After the job</source>
        <translation>작업이 끝난 뒤</translation>
    </message>
    <message>
        <source>top left</source>
        <translation>왼쪽 위</translation>
    </message>
    <message>
        <source>top right</source>
        <translation>오른쪽 위</translation>
    </message>
    <message>
        <source>bottom left</source>
        <translation>왼쪽 아래</translation>
    </message>
    <message>
        <source>bottom right</source>
        <translation>오른쪽 아래</translation>
    </message>
    <message>
        <source>left</source>
        <translation>왼쪽</translation>
    </message>
    <message>
        <source>right</source>
        <translation>오른쪽</translation>
    </message>
    <message>
        <source>top</source>
        <translation>위</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>아래</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
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
        <translation>수동 급지 용지 크기</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>용지 크기</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>사용자 정의</translation>
    </message>
    <message>
        <source>General</source>
        <translation>일반</translation>
    </message>
    <message>
        <source>Installed equipment</source>
        <translation>설치된 장비</translation>
    </message>
    <message>
        <source>Further options</source>
        <translation>기타 옵션</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>양면</translation>
    </message>
    <message>
        <source>Upper tray</source>
        <translation>위쪽 용지함</translation>
    </message>
    <message>
        <source>Middle tray</source>
        <translation>가운데 용지함</translation>
    </message>
    <message>
        <source>Lower tray</source>
        <translation>아래쪽 용지함</translation>
    </message>
    <message>
        <source>Rear tray</source>
        <translation>뒤쪽 용지함</translation>
    </message>
    <message>
        <source>Side tray</source>
        <translation>측면 용지함</translation>
    </message>
    <message>
        <source>Left tray</source>
        <translation>왼쪽 용지함</translation>
    </message>
    <message>
        <source>Right tray</source>
        <translation>오른쪽 용지함</translation>
    </message>
    <message>
        <source>Center tray</source>
        <translation>중앙 용지함</translation>
    </message>
    <message>
        <source>Manual feed</source>
        <translation>수동 급지</translation>
    </message>
    <message>
        <source>Bypass tray</source>
        <translation>보조 용지함</translation>
    </message>
    <message>
        <source>Multipurpose tray</source>
        <translation>다용도 용지함</translation>
    </message>
    <message>
        <source>Large-capacity tray</source>
        <translation>대용량 용지함</translation>
    </message>
    <message>
        <source>Envelope feeder</source>
        <translation>봉투 급지대</translation>
    </message>
    <message>
        <source>Main tray</source>
        <translation>기본 용지함</translation>
    </message>
    <message>
        <source>Alternate tray</source>
        <translation>대체 용지함</translation>
    </message>
    <message>
        <source>Photo tray</source>
        <translation>사진 용지함</translation>
    </message>
    <message>
        <source>Disc tray</source>
        <translation>디스크 트레이</translation>
    </message>
    <message>
        <source>Cassette</source>
        <translation>카세트</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>롤</translation>
    </message>
    <message>
        <source>Tractor feed</source>
        <translation>트랙터 급지</translation>
    </message>
    <message>
        <source>Tray %1</source>
        <translation>용지함 %1</translation>
    </message>
    <message>
        <source>Cassette %1</source>
        <translation>카세트 %1</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>롤 %1</translation>
    </message>
    <message>
        <source>Standard tray</source>
        <translation>표준 용지함</translation>
    </message>
    <message>
        <source>Face down</source>
        <translation>인쇄면 아래로</translation>
    </message>
    <message>
        <source>Face up</source>
        <translation>인쇄면 위로</translation>
    </message>
    <message>
        <source>Stacker</source>
        <translation>스태커</translation>
    </message>
    <message>
        <source>Mailbox</source>
        <translation>메일박스</translation>
    </message>
    <message>
        <source>Finisher tray</source>
        <translation>피니셔 용지함</translation>
    </message>
    <message>
        <source>Booklet tray</source>
        <translation>소책자 용지함</translation>
    </message>
    <message>
        <source>Stacker %1</source>
        <translation>스태커 %1</translation>
    </message>
    <message>
        <source>Mailbox %1</source>
        <translation>메일박스 %1</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>일반 용지</translation>
    </message>
    <message>
        <source>Recycled</source>
        <translation>재생지</translation>
    </message>
    <message>
        <source>Letterhead</source>
        <translation>레터헤드</translation>
    </message>
    <message>
        <source>Prepunched</source>
        <translation>펀치 용지</translation>
    </message>
    <message>
        <source>Preprinted</source>
        <translation>인쇄 용지</translation>
    </message>
    <message>
        <source>Bond</source>
        <translation>본드지</translation>
    </message>
    <message>
        <source>Heavy</source>
        <translation>두꺼운 용지</translation>
    </message>
    <message>
        <source>Thin</source>
        <translation>얇은 용지</translation>
    </message>
    <message>
        <source>Coated</source>
        <translation>코팅 용지</translation>
    </message>
    <message>
        <source>Card stock</source>
        <translation>카드 용지</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>라벨 용지</translation>
    </message>
    <message>
        <source>Transparencies</source>
        <translation>투명 필름</translation>
    </message>
    <message>
        <source>Envelopes</source>
        <translation>봉투</translation>
    </message>
    <message>
        <source>Glossy</source>
        <translation>광택지</translation>
    </message>
    <message>
        <source>Photo paper</source>
        <translation>사진 용지</translation>
    </message>
    <message>
        <source>High-gloss photo paper</source>
        <translation>고광택 사진 용지</translation>
    </message>
    <message>
        <source>Matte photo paper</source>
        <translation>무광 사진 용지</translation>
    </message>
    <message>
        <source>Semi-gloss photo paper</source>
        <translation>반광택 사진 용지</translation>
    </message>
    <message>
        <source>Matte</source>
        <translation>무광 용지</translation>
    </message>
    <message>
        <source>Colored</source>
        <translation>색지</translation>
    </message>
    <message>
        <source>Rough</source>
        <translation>거친 용지</translation>
    </message>
    <message>
        <source>Tab stock</source>
        <translation>탭 용지</translation>
    </message>
    <message>
        <source>Vellum</source>
        <translation>벨럼지</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>연속 용지</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>디스크</translation>
    </message>
    <message>
        <source>Fine paper</source>
        <translation>고급지</translation>
    </message>
    <message>
        <source>Cotton</source>
        <translation>면지</translation>
    </message>
    <message>
        <source>US Letter</source>
        <translation>레터</translation>
    </message>
    <message>
        <source>US Legal</source>
        <translation>리걸</translation>
    </message>
    <message>
        <source>Tabloid</source>
        <translation>타블로이드</translation>
    </message>
    <message>
        <source>Ledger</source>
        <translation>레저</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>스테이트먼트</translation>
    </message>
    <message>
        <source>Executive</source>
        <translation>이그제큐티브</translation>
    </message>
    <message>
        <source>Folio</source>
        <translation>폴리오</translation>
    </message>
    <message>
        <source>Oficio</source>
        <translation>오피시오</translation>
    </message>
    <message>
        <source>Postcard</source>
        <translation>엽서</translation>
    </message>
    <message>
        <source>Double postcard</source>
        <translation>왕복엽서</translation>
    </message>
    <message>
        <source>Envelope No. 10</source>
        <translation>봉투 10호</translation>
    </message>
    <message>
        <source>Envelope No. 9</source>
        <translation>봉투 9호</translation>
    </message>
    <message>
        <source>Envelope DL</source>
        <translation>봉투 DL</translation>
    </message>
    <message>
        <source>Envelope C4</source>
        <translation>봉투 C4</translation>
    </message>
    <message>
        <source>Envelope C5</source>
        <translation>봉투 C5</translation>
    </message>
    <message>
        <source>Envelope C6</source>
        <translation>봉투 C6</translation>
    </message>
    <message>
        <source>Envelope B5</source>
        <translation>봉투 B5</translation>
    </message>
    <message>
        <source>Envelope Monarch</source>
        <translation>봉투 모나크</translation>
    </message>
    <message>
        <source>Envelope A2</source>
        <translation>봉투 A2</translation>
    </message>
    <message>
        <source>B4 (ISO)</source>
        <translation>B4(ISO)</translation>
    </message>
    <message>
        <source>B5 (ISO)</source>
        <translation>B5(ISO)</translation>
    </message>
    <message>
        <source>B4 (JIS)</source>
        <translation>B4(JIS)</translation>
    </message>
    <message>
        <source>B5 (JIS)</source>
        <translation>B5(JIS)</translation>
    </message>
    <message>
        <source>B6 (JIS)</source>
        <translation>B6(JIS)</translation>
    </message>
    <message>
        <source>A3 oversize</source>
        <translation>A3 확장</translation>
    </message>
    <message>
        <source>3 × 5 in</source>
        <translation>3 × 5인치</translation>
    </message>
    <message>
        <source>4 × 6 in</source>
        <translation>4 × 6인치</translation>
    </message>
    <message>
        <source>5 × 7 in</source>
        <translation>5 × 7인치</translation>
    </message>
    <message>
        <source>5 × 8 in</source>
        <translation>5 × 8인치</translation>
    </message>
    <message>
        <source>8 × 10 in</source>
        <translation>8 × 10인치</translation>
    </message>
    <message>
        <source>US Foolscap</source>
        <translation>풀스캡</translation>
    </message>
    <message>
        <source>%1, borderless</source>
        <translation>%1, 테두리 없음</translation>
    </message>
    <message>
        <source>%1, rotated</source>
        <translation>%1, 회전</translation>
    </message>
    <message>
        <source>%1, oversize</source>
        <translation>%1, 확장</translation>
    </message>
    <message>
        <source>%1, large margins</source>
        <translation>%1, 넓은 여백</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>끔</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>긴 가장자리</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>짧은 가장자리</translation>
    </message>
    <message>
        <source>On</source>
        <translation>켬</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>흑백</translation>
    </message>
    <message>
        <source>Pure black and white</source>
        <translation>순수 흑백</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>컬러</translation>
    </message>
    <message>
        <source>Color (CMYK)</source>
        <translation>컬러(CMYK)</translation>
    </message>
    <message>
        <source>Color (CMY)</source>
        <translation>컬러(CMY)</translation>
    </message>
    <message>
        <source>Color (Adobe RGB)</source>
        <translation>컬러(Adobe RGB)</translation>
    </message>
    <message>
        <source>Color (16 bits)</source>
        <translation>컬러(16비트)</translation>
    </message>
    <message>
        <source>Black and white (16 bits)</source>
        <translation>흑백(16비트)</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>초안</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>보통</translation>
    </message>
    <message>
        <source>High</source>
        <translation>높음</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>최고</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>빠름</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>표준</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>사진</translation>
    </message>
    <message>
        <source>First page first</source>
        <translation>첫 페이지부터</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>마지막 페이지부터</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>자동</translation>
    </message>
    <message>
        <source>Printer’s default</source>
        <translation>프린터 기본값</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>기타</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>용지 공급</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>용지 종류</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>품질</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>출력 용지함</translation>
    </message>
    <message>
        <source>Stapling</source>
        <translation>스테이플</translation>
    </message>
    <message>
        <source>Folding</source>
        <translation>접기</translation>
    </message>
    <message>
        <source>Hole punch</source>
        <translation>펀치</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>마무리</translation>
    </message>
    <message>
        <source>Cutting</source>
        <translation>재단</translation>
    </message>
    <message>
        <source>Page order</source>
        <translation>페이지 순서</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>해상도</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>한 부씩 인쇄</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>장당 페이지 수</translation>
    </message>
    <message>
        <source>Tray switching</source>
        <translation>용지함 전환</translation>
    </message>
    <message>
        <source>Mirror image</source>
        <translation>거울상</translation>
    </message>
    <message>
        <source>Negative</source>
        <translation>네거티브</translation>
    </message>
    <message>
        <source>Smoothing</source>
        <translation>다듬기</translation>
    </message>
    <message>
        <source>Slip sheets</source>
        <translation>간지</translation>
    </message>
    <message>
        <source>Toner saving</source>
        <translation>토너 절약</translation>
    </message>
    <message>
        <source>Paper color</source>
        <translation>용지 색상</translation>
    </message>
    <message>
        <source>Paper weight</source>
        <translation>용지 무게</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>모든 페이지</translation>
    </message>
    <message>
        <source>Odd pages only</source>
        <translation>홀수 페이지만</translation>
    </message>
    <message>
        <source>Even pages only</source>
        <translation>짝수 페이지만</translation>
    </message>
    <message>
        <source>Fit to page</source>
        <translation>페이지에 맞춤</translation>
    </message>
    <message>
        <source>Fill the page</source>
        <translation>페이지 채우기</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>실제 크기</translation>
    </message>
    <message>
        <source>Left to right, then down</source>
        <translation>왼쪽에서 오른쪽, 아래로</translation>
    </message>
    <message>
        <source>Right to left, then down</source>
        <translation>오른쪽에서 왼쪽, 아래로</translation>
    </message>
    <message>
        <source>Left to right, then up</source>
        <translation>왼쪽에서 오른쪽, 위로</translation>
    </message>
    <message>
        <source>Right to left, then up</source>
        <translation>오른쪽에서 왼쪽, 위로</translation>
    </message>
    <message>
        <source>Down, then left to right</source>
        <translation>아래로, 왼쪽에서 오른쪽</translation>
    </message>
    <message>
        <source>Down, then right to left</source>
        <translation>아래로, 오른쪽에서 왼쪽</translation>
    </message>
    <message>
        <source>Up, then left to right</source>
        <translation>위로, 왼쪽에서 오른쪽</translation>
    </message>
    <message>
        <source>Up, then right to left</source>
        <translation>위로, 오른쪽에서 왼쪽</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>양식</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>기밀 분류</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>대외비</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>비밀</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>극비</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>분류 안 됨</translation>
    </message>
    <message>
        <source>At once</source>
        <translation>바로</translation>
    </message>
    <message>
        <source>When released</source>
        <translation>보류 해제 시</translation>
    </message>
    <message>
        <source>By day</source>
        <translation>주간</translation>
    </message>
    <message>
        <source>In the evening</source>
        <translation>저녁</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>야간</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>주말</translation>
    </message>
    <message>
        <source>In the second shift</source>
        <translation>2교대 시간</translation>
    </message>
    <message>
        <source>In the third shift</source>
        <translation>3교대 시간</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>낮음</translation>
    </message>
    <message>
        <source>Urgent</source>
        <translation>긴급</translation>
    </message>
    <message>
        <source>Odd and even pages</source>
        <translation>홀수/짝수 페이지</translation>
    </message>
    <message>
        <source>Adjust size</source>
        <translation>크기 조정</translation>
    </message>
    <message>
        <source>Sequence on the sheet</source>
        <translation>용지 위 순서</translation>
    </message>
    <message>
        <source>Banner page</source>
        <translation>배너 페이지</translation>
    </message>
    <message>
        <source>Start printing</source>
        <translation>인쇄 시작</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>우선순위</translation>
    </message>
</context>
<context>
    <name>orvek::SummaryLines</name>
    <message>
        <source>Copies</source>
        <translation>매수</translation>
    </message>
    <message>
        <source>Set by set</source>
        <translation>한 부씩</translation>
    </message>
    <message>
        <source>Page by page</source>
        <translation>페이지별</translation>
    </message>
    <message>
        <source>Order of copies</source>
        <translation>매수 인쇄 순서</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>페이지</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>방향</translation>
    </message>
    <message>
        <source>Page order</source>
        <translation>페이지 순서</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>마지막 페이지부터</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>장당 페이지 수</translation>
    </message>
</context>
<context>
    <name>orvek::SummaryView</name>
    <message>
        <source>%1: %2 (changed)</source>
        <translation>%1: %2(변경됨)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>요약</translation>
    </message>
    <message>
        <source>All settings of the job; those that were changed come first</source>
        <translation>작업의 모든 설정(변경된 것이 먼저)</translation>
    </message>
</context>
<context>
    <name>orvek::TicketBounds</name>
    <message>
        <source>Copies was set to 1: less is no job</source>
        <translation>매수를 1로 맞췄습니다. 그보다 적으면 작업이 되지 않습니다</translation>
    </message>
    <message>
        <source>Copies was set to %1: no job makes more</source>
        <translation>매수를 %1(으)로 맞췄습니다. 한 작업에서 더 많이 만들 수 없습니다</translation>
    </message>
</context>
<context>
    <name>orvek::UnderstoodNote</name>
    <message>
        <source>%1 still applies</source>
        <translation>%1이(가) 계속 적용됩니다</translation>
    </message>
    <message>
        <source>“%1” was read as %2</source>
        <translation>“%1”을(를) %2(으)로 읽었습니다</translation>
    </message>
</context>
<context>
    <name>orvek::Wording</name>
    <message>
        <source>%1 was set to %2: it can&apos;t be combined with %3</source>
        <translation>%1이(가) “%2”(으)로 바뀌었습니다. “%3”와(과) 함께 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>%1 was not set to %2: it can&apos;t be combined with %3</source>
        <translation>%1을(를) “%2”(으)로 바꾸지 않았습니다. “%3”와(과) 함께 쓸 수 없습니다</translation>
    </message>
</context>
</TS>
