<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>orvek::Availability</name>
    <message>
        <source>needs the %1, which this printer doesn&apos;t have</source>
        <translation>يتطلب %1، وهو غير متوفر في هذه الطابعة</translation>
    </message>
    <message>
        <source>not with %1</source>
        <translation>لا يمكن مع %1</translation>
    </message>
    <message>
        <source>%1 would be set to %2</source>
        <translation>سيُضبط %1 على %2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>a booklet is printed on both sides</source>
        <translation>يُطبع الكتيب على الوجهين</translation>
    </message>
</context>
<context>
    <name>orvek::ChooserRow</name>
    <message>
        <source>P&amp;rinter:</source>
        <translation>الطابعة (&amp;R):</translation>
    </message>
    <message>
        <source>Pr&amp;eset:</source>
        <translation>الإعداد المسبق (&amp;E):</translation>
    </message>
</context>
<context>
    <name>orvek::CopiesRow</name>
    <message>
        <source>Copies</source>
        <translation>النسخ</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>ترتيب النسخ</translation>
    </message>
    <message>
        <source>Whole sets one after the other, not all copies of each page</source>
        <translation>مجموعات كاملة واحدة تلو الأخرى، لا كل نسخ الصفحة معًا</translation>
    </message>
    <message>
        <source>From 1 to %1; %2 applies</source>
        <translation>من 1 إلى %1؛ يسري %2</translation>
    </message>
    <message>
        <source>%1 still applies</source>
        <translation>ما زال %1 ساريًا</translation>
    </message>
</context>
<context>
    <name>orvek::CustomSizeRow</name>
    <message>
        <source>Paper width</source>
        <translation>عرض الورق</translation>
    </message>
    <message>
        <source>Paper height</source>
        <translation>ارتفاع الورق</translation>
    </message>
</context>
<context>
    <name>orvek::CustomValue</name>
    <message>
        <source>%1 pt</source>
        <translation>%1 نقطة</translation>
    </message>
    <message>
        <source>%1: digits only</source>
        <translation>%1: أرقام فقط</translation>
    </message>
    <message>
        <source>%1: %2 characters</source>
        <translation>%1: عدد الأحرف %2</translation>
    </message>
    <message>
        <source>%1: %2 to %3 characters</source>
        <translation>%1: عدد الأحرف من %2 إلى %3</translation>
    </message>
    <message>
        <source>%1: %2 to %3</source>
        <translation>%1: من %2 إلى %3</translation>
    </message>
</context>
<context>
    <name>orvek::CustomValueForm</name>
    <message>
        <source> pt</source>
        <translation> نقطة</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>من %1 إلى %2</translation>
    </message>
</context>
<context>
    <name>orvek::DocumentHeader</name>
    <message>
        <source>1 page</source>
        <translation>صفحة واحدة</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%n صفحة</numerusform>
            <numerusform>صفحة واحدة</numerusform>
            <numerusform>صفحتان</numerusform>
            <numerusform>%n صفحات</numerusform>
            <numerusform>%n صفحة</numerusform>
            <numerusform>%n صفحة</numerusform>
        </translation>
    </message>
    <message>
        <source>Document</source>
        <translation>المستند</translation>
    </message>
</context>
<context>
    <name>orvek::DocumentInfo</name>
    <message>
        <source>(stdin)</source>
        <translation>(الدخل القياسي)</translation>
    </message>
</context>
<context>
    <name>orvek::DocumentMenu</name>
    <message>
        <source>Add and remove documents</source>
        <translation>إضافة المستندات وإزالتها</translation>
    </message>
    <message>
        <source>&amp;Add Files…</source>
        <translation>إضافة ملفات… (&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Choose Other Files…</source>
        <translation>اختيار ملفات أخرى… (&amp;C)</translation>
    </message>
    <message>
        <source>Remove %1. %2</source>
        <translation>إزالة %1. %2</translation>
    </message>
</context>
<context>
    <name>orvek::DocumentPassword</name>
    <message>
        <source>That password does not open %1.</source>
        <translation>كلمة المرور هذه لا تفتح %1.</translation>
    </message>
    <message>
        <source>%1 is protected by a password.</source>
        <translation>‏%1 محمي بكلمة مرور.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>فتح (&amp;O)</translation>
    </message>
</context>
<context>
    <name>orvek::Failure</name>
    <message>
        <source>the print server asks for a password, and none was given</source>
        <translation>يطلب خادم الطباعة كلمة مرور ولم تُعطَ</translation>
    </message>
    <message>
        <source>not found, so no booklet can be made; install this filter, too</source>
        <translation>غير موجود، لذا لا يمكن إنشاء كتيب؛ ثبّت هذا المرشح أيضًا</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>مجلد</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>الدخل القياسي</translation>
    </message>
    <message>
        <source>is empty, so there is nothing to print</source>
        <translation>فارغ، لذا لا يوجد ما يُطبع</translation>
    </message>
    <message>
        <source>can be printed once only, and &quot;-&quot; is given more than once</source>
        <translation>لا يمكن طباعته إلا مرة واحدة، و«-» مذكور أكثر من مرة</translation>
    </message>
    <message>
        <source>is a folder, not a PPD file</source>
        <translation>مجلد وليس ملف PPD</translation>
    </message>
    <message>
        <source>has no page %1: the number of its pages is %2</source>
        <translation>ليست فيه الصفحة %1: عدد صفحاته %2</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>الخرج القياسي</translation>
    </message>
    <message>
        <source>is the document itself, which would be lost; name another file</source>
        <translation>هو المستند نفسه الذي سيُفقد؛ حدد ملفًا آخر</translation>
    </message>
    <message>
        <source>not found; install the package &quot;cups&quot;</source>
        <translation>غير موجود؛ ثبّت الحزمة «cups»</translation>
    </message>
    <message>
        <source>the filter %1 stopped with status %2</source>
        <translation>توقف المرشح %1 بالحالة %2</translation>
    </message>
    <message>
        <source>the filter %1 crashed on signal %2</source>
        <translation>انهار المرشح %1 بالإشارة %2</translation>
    </message>
    <message>
        <source>the filter %1</source>
        <translation>المرشح %1</translation>
    </message>
    <message>
        <source>the filter %1 has insecure permissions</source>
        <translation>أذونات المرشح %1 غير آمنة</translation>
    </message>
    <message>
        <source>the filter %1 not available: %2</source>
        <translation>المرشح %1 غير متاح: %2</translation>
    </message>
    <message>
        <source>it needs a password; print it from a program that opens it with that password</source>
        <translation>يحتاج إلى كلمة مرور؛ اطبعه من برنامج يفتحه بها</translation>
    </message>
    <message>
        <source>whoever made it has encrypted it and does not allow that it is printed</source>
        <translation>شفّره من أنشأه ولا يسمح بطباعته</translation>
    </message>
    <message>
        <source>its type is unknown; print a PDF, PostScript, text or image file</source>
        <translation>نوعه غير معروف؛ اطبع ملف PDF أو PostScript أو نصًا أو صورة</translation>
    </message>
    <message>
        <source>no filter prints the type %1</source>
        <translation>لا يوجد مرشح يطبع النوع %1</translation>
    </message>
    <message>
        <source>the filters ended with status %1</source>
        <translation>انتهت المرشحات بالحالة %1</translation>
    </message>
    <message>
        <source>the filters made no output of it</source>
        <translation>لم تُنتج المرشحات منه أي خرج</translation>
    </message>
    <message>
        <source>only a part of it was read before the job was cancelled</source>
        <translation>لم يُقرأ سوى جزء منه قبل إلغاء المهمة</translation>
    </message>
    <message>
        <source>job</source>
        <translation>المهمة</translation>
    </message>
    <message>
        <source>is empty, so no job has been sent</source>
        <translation>فارغ، لذا لم تُرسل أي مهمة</translation>
    </message>
    <message>
        <source>%1; print it once more, and its sheets are made on this computer</source>
        <translation>%1؛ اطبع مرة أخرى لتُجهَّز الأوراق على هذا الحاسوب</translation>
    </message>
    <message>
        <source>the print server wants it once more; print it from a file instead</source>
        <translation>يطلبه خادم الطباعة مرة أخرى؛ اطبع من ملف بدلاً من ذلك</translation>
    </message>
    <message>
        <source>the server&apos;s driver can&apos;t make booklets</source>
        <translation>لا يستطيع برنامج تشغيل الخادم إنشاء كتيبات</translation>
    </message>
    <message>
        <source>the server lacks the printer&apos;s driver and stops every job</source>
        <translation>ينقص الخادم برنامج تشغيل الطابعة وهو يوقف كل مهمة</translation>
    </message>
    <message>
        <source>&quot;PluginInterface&quot; must be a number</source>
        <translation>يجب أن يكون «PluginInterface» عددًا</translation>
    </message>
    <message>
        <source>made for plug-in interface %1, this program has %2: install the plug-in that belongs to it</source>
        <translation>مصنوع لواجهة الإضافات %1 بينما لدى هذا البرنامج %2: ثبّت الإضافة المناسبة له</translation>
    </message>
    <message>
        <source>&quot;Executable&quot; must name the plug-in&apos;s code file</source>
        <translation>يجب أن يسمّي «Executable» ملف شيفرة الإضافة</translation>
    </message>
    <message>
        <source>&quot;Executable&quot; must be a file inside the bundle, not &quot;%1&quot;</source>
        <translation>يجب أن يكون «Executable» ملفًا داخل الحزمة، لا «%1»</translation>
    </message>
    <message>
        <source>the plug-in&apos;s code is missing</source>
        <translation>شيفرة الإضافة مفقودة</translation>
    </message>
    <message>
        <source>no such plug-in bundle (a folder)</source>
        <translation>لا توجد حزمة إضافة كهذه (مجلد)</translation>
    </message>
    <message>
        <source>&quot;PrincipalClass&quot; must name the plug-in&apos;s class</source>
        <translation>يجب أن يسمّي «PrincipalClass» صنف الإضافة</translation>
    </message>
    <message>
        <source>the plug-in&apos;s code can&apos;t be loaded (%1)</source>
        <translation>تعذر تحميل شيفرة الإضافة (%1)</translation>
    </message>
    <message>
        <source>has no factory for the class &quot;%1&quot;</source>
        <translation>لا يملك مصنعًا للصنف «%1»</translation>
    </message>
    <message>
        <source>the plug-in&apos;s factory refused its bundle</source>
        <translation>رفض مصنع الإضافة حزمتها</translation>
    </message>
    <message>
        <source>belongs to another user, whose code would run as yours; a plug-in must be yours or the administrator&apos;s</source>
        <translation>يخص مستخدمًا آخر، وستعمل شيفرته باسمك؛ يجب أن تكون الإضافة لك أو للمسؤول</translation>
    </message>
    <message>
        <source>can be written by others, whose code would run as yours; take that right from them (chmod go-w)</source>
        <translation>يمكن للآخرين الكتابة فيه، وستعمل شيفرتهم باسمك؛ انزع هذا الحق منهم (chmod go-w)</translation>
    </message>
    <message>
        <source>not a valid PPD file (%1)</source>
        <translation>ليس ملف PPD صالحًا (%1)</translation>
    </message>
    <message>
        <source>not a preset: %1</source>
        <translation>ليس إعدادًا مسبقًا: %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be text</source>
        <translation>يجب أن يكون «%1» نصًا</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be an object</source>
        <translation>يجب أن يكون «%1» كائنًا</translation>
    </message>
    <message>
        <source>option &quot;%1&quot; must have a choice as text</source>
        <translation>يجب أن يكون اختيار الخيار «%1» نصًا</translation>
    </message>
    <message>
        <source>not a preset: one JSON object expected</source>
        <translation>ليس إعدادًا مسبقًا: المتوقع كائن JSON واحد</translation>
    </message>
    <message>
        <source>preset name</source>
        <translation>اسم الإعداد المسبق</translation>
    </message>
    <message>
        <source>is empty; give the preset a name</source>
        <translation>فارغ؛ أعطِ الإعداد المسبق اسمًا</translation>
    </message>
    <message>
        <source>can&apos;t hold line breaks or control characters</source>
        <translation>لا يمكن أن يحتوي على فواصل أسطر أو أحرف تحكم</translation>
    </message>
    <message>
        <source>preset &quot;%1&quot;</source>
        <translation>الإعداد المسبق «%1»</translation>
    </message>
    <message>
        <source>can&apos;t be made</source>
        <translation>تعذر إنشاؤه</translation>
    </message>
    <message>
        <source>the present one is damaged and left as it is (%1); delete it first</source>
        <translation>الموجود تالف ويُترك كما هو (%1)؛ احذفه أولاً</translation>
    </message>
    <message>
        <source>holds a preset of another name: &quot;%1&quot;</source>
        <translation>يحتوي على إعداد مسبق باسم آخر: «%1»</translation>
    </message>
    <message>
        <source>there is one of that name already</source>
        <translation>يوجد إعداد بهذا الاسم بالفعل</translation>
    </message>
    <message>
        <source>the print server asks for a password</source>
        <translation>يطلب خادم الطباعة كلمة مرور</translation>
    </message>
    <message>
        <source>the print server did not accept the password of user &quot;%1&quot;, given %2 times</source>
        <translation>لم يقبل خادم الطباعة كلمة مرور المستخدم «%1» بعد عدد المحاولات %2</translation>
    </message>
    <message>
        <source>the print server sent an answer that cannot be read</source>
        <translation>أرسل خادم الطباعة إجابة لا يمكن قراءتها</translation>
    </message>
    <message>
        <source>the print server stopped answering; try again once it is up</source>
        <translation>توقف خادم الطباعة عن الإجابة؛ أعد المحاولة عندما يعمل</translation>
    </message>
    <message>
        <source>the print server did not come to an end of its answer; try again later, or ask whoever runs it</source>
        <translation>لم يُنهِ خادم الطباعة إجابته؛ أعد المحاولة لاحقًا أو اسأل من يديره</translation>
    </message>
    <message>
        <source>names a printer that does not exist: &quot;%1&quot;</source>
        <translation>يسمّي طابعة غير موجودة: «%1»</translation>
    </message>
    <message>
        <source>the print server does not give its printer description (%1)</source>
        <translation>لا يعطي خادم الطباعة وصف الطابعة (%1)</translation>
    </message>
    <message>
        <source>no print server has this name</source>
        <translation>لا يوجد خادم طباعة بهذا الاسم</translation>
    </message>
    <message>
        <source>no print server answers there</source>
        <translation>لا يجيب أي خادم طباعة هناك</translation>
    </message>
    <message>
        <source>no print server answers there (%1)</source>
        <translation>لا يجيب أي خادم طباعة هناك (%1)</translation>
    </message>
    <message>
        <source>the connection to the print server broke</source>
        <translation>انقطع الاتصال بخادم الطباعة</translation>
    </message>
    <message>
        <source>the connection to the print server broke (%1)</source>
        <translation>انقطع الاتصال بخادم الطباعة (%1)</translation>
    </message>
    <message>
        <source>the print server has no such queue or job</source>
        <translation>لا يوجد طابور أو مهمة كهذه على خادم الطباعة</translation>
    </message>
    <message>
        <source>the print server does not allow it for user &quot;%1&quot;</source>
        <translation>لا يسمح خادم الطباعة بذلك للمستخدم «%1»</translation>
    </message>
    <message>
        <source>the queue takes no jobs at present</source>
        <translation>لا يقبل الطابور مهامّ حاليًا</translation>
    </message>
    <message>
        <source>the print server gave no answer</source>
        <translation>لم يُجب خادم الطباعة</translation>
    </message>
    <message>
        <source>not a page range; write for example 1-3,7</source>
        <translation>ليس نطاق صفحات؛ اكتب مثلاً 1-3,7</translation>
    </message>
    <message>
        <source>not a ticket: JSON expected (%1)</source>
        <translation>ليس تذكرة: المتوقع JSON ‏(%1)</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>صحيح أو خطأ</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>قائمة</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>كائن</translation>
    </message>
    <message>
        <source>a number with a fraction</source>
        <translation>عدد كسري</translation>
    </message>
    <message>
        <source>not a ticket: one JSON object expected</source>
        <translation>ليس تذكرة: المتوقع كائن JSON واحد</translation>
    </message>
    <message>
        <source>key &quot;%1&quot; must be text or an integer, not %2</source>
        <translation>يجب أن يكون المفتاح «%1» نصًا أو عددًا صحيحًا، لا %2</translation>
    </message>
    <message>
        <source>is larger than 1 MB, as no ticket and no preset is</source>
        <translation>أكبر من 1 م.ب، ولا تبلغ ذلك أي تذكرة أو إعداد مسبق</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>أُلغي</translation>
    </message>
    <message>
        <source>Bad file descriptor</source>
        <translation>واصف الملف غير صالح</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <translation>انقطع الأنبوب</translation>
    </message>
    <message>
        <source>Connection refused</source>
        <translation>رُفض الاتصال</translation>
    </message>
    <message>
        <source>Connection reset by peer</source>
        <translation>أعاد الطرف الآخر ضبط الاتصال</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>انتهت مهلة الاتصال</translation>
    </message>
    <message>
        <source>File too large</source>
        <translation>الملف كبير جدًا</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>خطأ في الدخل أو الخرج</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>مجلد</translation>
    </message>
    <message>
        <source>Network is unreachable</source>
        <translation>الشبكة غير قابلة للوصول</translation>
    </message>
    <message>
        <source>No route to host</source>
        <translation>لا يوجد مسار إلى المضيف</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>لا توجد مساحة متبقية على الجهاز</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>لا يوجد ملف أو مجلد كهذا</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>ليس مجلدًا</translation>
    </message>
    <message>
        <source>Operation now in progress</source>
        <translation>العملية ما زالت جارية</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>العملية غير مسموح بها</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <translation>رُفض الإذن</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>نظام الملفات للقراءة فقط</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>ملفات مفتوحة كثيرة جدًا</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>is damaged beyond repair</source>
        <translation>تالف ولا يمكن إصلاحه</translation>
    </message>
    <message>
        <source>has no pages, so there is nothing to print</source>
        <translation>لا يحتوي على صفحات، لذا لا يوجد ما يُطبع</translation>
    </message>
    <message>
        <source>a copy that the filters can open can&apos;t be written; make room for temporary files</source>
        <translation>تعذرت كتابة نسخة يمكن للمرشحات فتحها؛ وفّر مساحة للملفات المؤقتة</translation>
    </message>
    <message>
        <source>the sheets of several documents can&apos;t be put into one PDF; print them one by one</source>
        <translation>لا يمكن جمع أوراق عدة مستندات في ملف PDF واحد؛ اطبعها واحدًا تلو الآخر</translation>
    </message>
    <message>
        <source>no such printer on %1; choose another one</source>
        <translation>لا توجد طابعة كهذه على %1؛ اختر غيرها</translation>
    </message>
    <message>
        <source>there is no default printer; choose one</source>
        <translation>لا توجد طابعة افتراضية؛ اختر واحدة</translation>
    </message>
    <message>
        <source>there is none of that name; choose another one</source>
        <translation>لا يوجد إعداد بهذا الاسم؛ اختر غيره</translation>
    </message>
    <message>
        <source>has no side that %1 asks for: the number of its sides is %2</source>
        <translation>ليس فيه وجه مما يطلبه %1: عدد أوجهه %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a meaning of its own in the list; choose another</source>
        <translation>للاسم «%1» معنى خاص به في القائمة؛ اختر غيره</translation>
    </message>
</context>
<context>
    <name>orvek::GeneralPage</name>
    <message>
        <source>Last page first</source>
        <translation>الصفحة الأخيرة أولاً</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>حجم الورق</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>مصدر الورق</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>نوع الورق</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>الاتجاه</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>صفحات لكل ورقة</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>ألوان</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>الجودة</translation>
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
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>As the job</source>
        <translation>كما في المهمة</translation>
    </message>
    <message>
        <source>%1 pt</source>
        <translation>%1 نقطة</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>كتيب</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>من اليمين إلى اليسار</translation>
    </message>
    <message>
        <source>Page borders</source>
        <translation>حدود الصفحات</translation>
    </message>
    <message>
        <source>Gutter</source>
        <translation>هامش التجليد</translation>
    </message>
    <message>
        <source>Creep</source>
        <translation>الإزاحة الداخلية</translation>
    </message>
    <message>
        <source>Target paper size</source>
        <translation>حجم ورق الوجهة</translation>
    </message>
    <message>
        <source>All</source>
        <translation>الكل</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>النسخ</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>ترتيب النسخ</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>الصفحات</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>الصفحة الأخيرة أولاً</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>الاتجاه</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>صفحات لكل ورقة</translation>
    </message>
    <message>
        <source>Other settings</source>
        <translation>إعدادات أخرى</translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation>
            <numerusform>%n أخرى</numerusform>
            <numerusform>واحد آخر</numerusform>
            <numerusform>اثنان آخران</numerusform>
            <numerusform>%n أخرى</numerusform>
            <numerusform>%n أخرى</numerusform>
            <numerusform>%n أخرى</numerusform>
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
        <translation>تراجع</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>إعادة</translation>
    </message>
</context>
<context>
    <name>orvek::JobBar</name>
    <message>
        <source>&amp;Print</source>
        <translation>طباعة (&amp;P)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>التقدم</translation>
    </message>
    <message>
        <source>&amp;Print to File…</source>
        <translation>طباعة إلى ملف (&amp;P)…</translation>
    </message>
    <message>
        <source>Stops the job</source>
        <translation>يوقف المهمة</translation>
    </message>
    <message>
        <source>Closes the window without printing</source>
        <translation>يغلق النافذة دون طباعة</translation>
    </message>
    <message>
        <source>Stopping the job</source>
        <translation>جارٍ إيقاف المهمة</translation>
    </message>
</context>
<context>
    <name>orvek::JobDocuments</name>
    <message>
        <source>Choose a file, or drop one here</source>
        <translation>اختر ملفًا أو أفلته هنا</translation>
    </message>
    <message>
        <source>Opening…</source>
        <translation>جارٍ الفتح…</translation>
    </message>
    <message>
        <source>Protected by a password</source>
        <translation>محمي بكلمة مرور</translation>
    </message>
    <message>
        <source>Can&apos;t be printed</source>
        <translation>تتعذر طباعته</translation>
    </message>
    <message>
        <source>There is no document yet</source>
        <translation>لا يوجد مستند بعد</translation>
    </message>
    <message>
        <source>%1 needs its password</source>
        <translation>يحتاج %1 إلى كلمة مروره</translation>
    </message>
    <message>
        <source>%1 is damaged beyond repair</source>
        <translation>‏%1 تالف ولا يمكن إصلاحه</translation>
    </message>
    <message>
        <source>%1 has no pages</source>
        <translation>لا توجد صفحات في %1</translation>
    </message>
    <message>
        <source>%1 is empty</source>
        <translation>‏%1 فارغ</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read</source>
        <translation>تعذرت قراءة %1</translation>
    </message>
    <message>
        <source>Enter Password…</source>
        <translation>إدخال كلمة المرور…</translation>
    </message>
    <message>
        <source>Choose File…</source>
        <translation>اختيار ملف…</translation>
    </message>
    <message>
        <source>Choose Documents</source>
        <translation>اختيار المستندات</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 و%2 غيرها</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>المستند</translation>
    </message>
    <message>
        <source>Add Documents</source>
        <translation>إضافة المستندات</translation>
    </message>
</context>
<context>
    <name>orvek::JobNotice</name>
    <message>
        <source>Job %1 on %2 was cancelled</source>
        <translation>أُلغيت المهمة %1 على %2</translation>
    </message>
    <message>
        <source>Sent to %1, job %2</source>
        <translation>أُرسل إلى %1، المهمة %2</translation>
    </message>
    <message>
        <source>Cancel Job</source>
        <translation>إلغاء المهمة</translation>
    </message>
</context>
<context>
    <name>orvek::JobPreview</name>
    <message>
        <source>Preview</source>
        <translation>معاينة</translation>
    </message>
    <message>
        <source>Previous side</source>
        <translation>الوجه السابق</translation>
    </message>
    <message>
        <source>Next side</source>
        <translation>الوجه التالي</translation>
    </message>
    <message>
        <source>Several sheets at once (Ctrl and wheel: zoom)</source>
        <translation>عدة أوراق معًا (Ctrl والعجلة: تكبير)</translation>
    </message>
    <message>
        <source>Several sheets at once</source>
        <translation>عدة أوراق معًا</translation>
    </message>
    <message>
        <source>No page of the document is printed.</source>
        <translation>لا تُطبع أي صفحة من المستند.</translation>
    </message>
    <message>
        <source>Reading the document…</source>
        <translation>جارٍ قراءة المستند…</translation>
    </message>
    <message>
        <source>The document&apos;s pages are not known: a sample</source>
        <translation>صفحات المستند غير معروفة: عيّنة</translation>
    </message>
    <message>
        <source>%1 × 1 sheet</source>
        <translation>%1 × ورقة واحدة</translation>
    </message>
    <message numerus="yes">
        <source>%1 × %n sheets</source>
        <translation>
            <numerusform>%1 × %n ورقة</numerusform>
            <numerusform>%1 × ورقة واحدة</numerusform>
            <numerusform>%1 × ورقتان</numerusform>
            <numerusform>%1 × %n ورقات</numerusform>
            <numerusform>%1 × %n ورقة</numerusform>
            <numerusform>%1 × %n ورقة</numerusform>
        </translation>
    </message>
    <message>
        <source>1 sheet</source>
        <translation>ورقة واحدة</translation>
    </message>
    <message numerus="yes">
        <source>%n sheets</source>
        <translation>
            <numerusform>%n ورقة</numerusform>
            <numerusform>ورقة واحدة</numerusform>
            <numerusform>ورقتان</numerusform>
            <numerusform>%n ورقات</numerusform>
            <numerusform>%n ورقة</numerusform>
            <numerusform>%n ورقة</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no document yet: a sample</source>
        <translation>لا يوجد مستند بعد: عيّنة</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>على الوجهين</translation>
    </message>
</context>
<context>
    <name>orvek::JobStrip</name>
    <message>
        <source>Copies</source>
        <translation>النسخ</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>الصفحات</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>على الوجهين</translation>
    </message>
</context>
<context>
    <name>orvek::JobWarnings</name>
    <message>
        <source>%1 with copies that are not collated: equal pages would be stapled together</source>
        <translation>%1 مع نسخ غير مرتبة: ستُدبَّس صفحات متماثلة معًا</translation>
    </message>
    <message>
        <source>A booklet of %1 sheets is more than the printer folds at once: at most %2</source>
        <translation>عدد أوراق الكتيب %1 يتجاوز ما تطويه الطابعة دفعة واحدة، والحد الأقصى %2</translation>
    </message>
    <message>
        <source>A booklet is printed on both sides, which can&apos;t be combined with %1</source>
        <translation>يُطبع الكتيب على الوجهين، ولا يمكن الجمع بينه وبين %1</translation>
    </message>
    <message>
        <source>The document has no page %1: the number of its pages is %2</source>
        <translation>لا توجد الصفحة %1 في المستند: عدد صفحاته %2</translation>
    </message>
    <message>
        <source>None of the sides that are asked for exists: the number of sides is %1</source>
        <translation>لا يوجد أي من الأوجه المطلوبة: عدد الأوجه %1</translation>
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
        <translation>تراجع (&amp;U)</translation>
    </message>
    <message>
        <source>Close the notice</source>
        <translation>إغلاق الإشعار</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>مشكلة</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>معلومات</translation>
    </message>
    <message>
        <source>Earlier notice</source>
        <translation>الإشعار السابق</translation>
    </message>
    <message>
        <source>Later notice</source>
        <translation>الإشعار التالي</translation>
    </message>
    <message numerus="yes">
        <source>&amp;Undo %n steps</source>
        <translation>
            <numerusform>تراجع %n خطوة (&amp;U)</numerusform>
            <numerusform>تراجع خطوة واحدة (&amp;U)</numerusform>
            <numerusform>تراجع خطوتين (&amp;U)</numerusform>
            <numerusform>تراجع %n خطوات (&amp;U)</numerusform>
            <numerusform>تراجع %n خطوة (&amp;U)</numerusform>
            <numerusform>تراجع %n خطوة (&amp;U)</numerusform>
        </translation>
    </message>
    <message>
        <source>Takes back the choice with all that it changed, and what came after it</source>
        <translation>يتراجع عن الاختيار وكل ما غيّره وما جاء بعده</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>a notice&apos;s place</comment>
        <translation>%1 من %2</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>إعادة المحاولة</translation>
    </message>
</context>
<context>
    <name>orvek::OptionsModel</name>
    <message>
        <source>Changed; by itself: %1</source>
        <translation>تغيّر؛ قيمته الأصلية: %1</translation>
    </message>
    <message>
        <source>Option</source>
        <translation>الخيار</translation>
    </message>
    <message>
        <source>Choice</source>
        <translation>الاختيار</translation>
    </message>
</context>
<context>
    <name>orvek::OptionsPage</name>
    <message>
        <source>Only changed</source>
        <translation>المتغيرة فقط</translation>
    </message>
    <message>
        <source>Set Back</source>
        <translation>استعادة</translation>
    </message>
    <message>
        <source>Set All Back</source>
        <translation>استعادة الكل</translation>
    </message>
    <message>
        <source>Search options</source>
        <translation>البحث في الخيارات</translation>
    </message>
    <message>
        <source>1 option changed</source>
        <translation>تم تغيير خيار واحد</translation>
    </message>
    <message numerus="yes">
        <source>%n options changed</source>
        <translation>
            <numerusform>تم تغيير %n خيار</numerusform>
            <numerusform>تم تغيير خيار واحد</numerusform>
            <numerusform>تم تغيير خيارين</numerusform>
            <numerusform>تم تغيير %n خيارات</numerusform>
            <numerusform>تم تغيير %n خيارًا</numerusform>
            <numerusform>تم تغيير %n خيار</numerusform>
        </translation>
    </message>
    <message>
        <source>No option changed</source>
        <translation>لم يتغير أي خيار</translation>
    </message>
    <message>
        <source>No option found</source>
        <translation>لم يُعثر على أي خيار</translation>
    </message>
    <message>
        <source>This printer has no more options</source>
        <translation>ليس لهذه الطابعة خيارات أخرى</translation>
    </message>
</context>
<context>
    <name>orvek::OptionsView</name>
    <message>
        <source>Options</source>
        <translation>الخيارات</translation>
    </message>
    <message>
        <source>Return opens an option&apos;s choices or switches it, Delete sets it back</source>
        <translation>يفتح مفتاح الإدخال اختيارات الخيار أو يبدّله، ويستعيده مفتاح الحذف</translation>
    </message>
</context>
<context>
    <name>orvek::OrientationText</name>
    <message>
        <source>Portrait</source>
        <translation>عمودي</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>أفقي</translation>
    </message>
    <message>
        <source>Portrait, upside down</source>
        <translation>عمودي، مقلوب</translation>
    </message>
    <message>
        <source>Landscape, upside down</source>
        <translation>أفقي، مقلوب</translation>
    </message>
    <message>
        <source>As in the document</source>
        <translation>كما في المستند</translation>
    </message>
</context>
<context>
    <name>orvek::PagesRow</name>
    <message>
        <source>All</source>
        <translation>الكل</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>نطاق</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>كل الصفحات</translation>
    </message>
    <message>
        <source>A range of pages</source>
        <translation>نطاق من الصفحات</translation>
    </message>
    <message>
        <source>Page range</source>
        <translation>نطاق الصفحات</translation>
    </message>
    <message>
        <source>e.g. 1-3, 7</source>
        <translation>مثلاً 1-3, 7</translation>
    </message>
    <message>
        <source>Write which pages to print, for example 1-3, 7</source>
        <translation>اكتب الصفحات المراد طباعتها، مثلاً 1-3, 7</translation>
    </message>
</context>
<context>
    <name>orvek::PasswordDialog</name>
    <message>
        <source>The print server %1 asks for a name and a password.</source>
        <translation>يطلب خادم الطباعة %1 اسمًا وكلمة مرور.</translation>
    </message>
    <message>
        <source>The print server did not accept that name and password.</source>
        <translation>لم يقبل خادم الطباعة هذا الاسم وكلمة المرور.</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>الاسم (&amp;N):</translation>
    </message>
    <message>
        <source>&amp;Sign In</source>
        <translation>دخول (&amp;S)</translation>
    </message>
</context>
<context>
    <name>orvek::PasswordForm</name>
    <message>
        <source>Password</source>
        <translation>كلمة المرور</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>كلمة المرور (&amp;P):</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>orvek::PresetChooser</name>
    <message>
        <source>Preset</source>
        <translation>الإعداد المسبق</translation>
    </message>
    <message>
        <source>Save and manage presets</source>
        <translation>حفظ الإعدادات المسبقة وإدارتها</translation>
    </message>
    <message>
        <source>&amp;Save As…</source>
        <translation>حفظ باسم (&amp;S)…</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>إعادة التسمية (&amp;R)…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>حذف (&amp;D)</translation>
    </message>
    <message>
        <source>None</source>
        <translation>بلا</translation>
    </message>
    <message>
        <source>Last used</source>
        <translation>آخر ما استُخدم</translation>
    </message>
    <message>
        <source>Name of the preset:</source>
        <translation>اسم الإعداد المسبق:</translation>
    </message>
    <message>
        <source>Save Preset</source>
        <translation>حفظ الإعداد المسبق</translation>
    </message>
    <message>
        <source>There is a preset “%1” already. Replace it?</source>
        <translation>يوجد إعداد مسبق «%1» بالفعل. هل تريد استبداله؟</translation>
    </message>
    <message>
        <source>Rename Preset</source>
        <translation>إعادة تسمية الإعداد المسبق</translation>
    </message>
    <message>
        <source>Delete Preset</source>
        <translation>حذف الإعداد المسبق</translation>
    </message>
    <message>
        <source>Delete the preset “%1”?</source>
        <translation>هل تريد حذف الإعداد المسبق «%1»؟</translation>
    </message>
    <message>
        <source>Remember &amp;Last Settings</source>
        <translation>تذكّر آخر الإعدادات (&amp;L)</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (معدّل)</translation>
    </message>
</context>
<context>
    <name>orvek::PresetFit</name>
    <message>
        <source>this printer has no option &quot;%1&quot;</source>
        <translation>ليس لهذه الطابعة الخيار «%1»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is installed equipment, which a preset does not change</source>
        <translation>«%1» من التجهيزات المثبتة التي لا يغيّرها إعداد مسبق</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of this printer has no choice &quot;%2&quot;</source>
        <translation>ليس في «%1» على هذه الطابعة الاختيار «%2»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; of this printer takes %2</source>
        <translation>يقبل «%1» على هذه الطابعة %2</translation>
    </message>
    <message>
        <source>this printer makes no booklets</source>
        <translation>لا تصنع هذه الطابعة كتيبات</translation>
    </message>
</context>
<context>
    <name>orvek::PrintDialog</name>
    <message>
        <source>the default printer</source>
        <translation>الطابعة الافتراضية</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>طباعة</translation>
    </message>
    <message>
        <source>Print all the same?</source>
        <translation>هل تريد الطباعة رغم ذلك؟</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>طباعة (&amp;P)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>The sheets can be made on this computer and sent finished.</source>
        <translation>يمكن تجهيز الأوراق على هذا الحاسوب وإرسالها جاهزة.</translation>
    </message>
    <message>
        <source>Banner pages would be left out.</source>
        <translation>ستُحذف صفحات الترويسة.</translation>
    </message>
    <message>
        <source>&amp;Impose here and print</source>
        <translation>ترتيب الصفحات هنا ثم الطباعة (&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Prepare here and print</source>
        <translation>تجهيز الصفحات هنا ثم الطباعة (&amp;P)</translation>
    </message>
    <message>
        <source>The job was cancelled.</source>
        <translation>أُلغيت المهمة.</translation>
    </message>
    <message>
        <source>It can still be printed into a file: choose File as the printer.</source>
        <translation>ما زالت الطباعة إلى ملف ممكنة: اختر «ملف» طابعةً.</translation>
    </message>
    <message>
        <source>Asking %1…</source>
        <translation>جارٍ سؤال %1…</translation>
    </message>
    <message>
        <source>Open a Printer Description</source>
        <translation>فتح وصف طابعة</translation>
    </message>
    <message>
        <source>Printer descriptions (*.ppd *.ppd.gz)</source>
        <translation>أوصاف الطابعات (*.ppd *.ppd.gz)</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>جارٍ قراءة %1…</translation>
    </message>
    <message>
        <source>Not everything fits this printer:</source>
        <translation>ليس كل شيء مناسبًا لهذه الطابعة:</translation>
    </message>
    <message>
        <source>Not all of the preset fits this printer:</source>
        <translation>ليس كل ما في الإعداد المسبق مناسبًا لهذه الطابعة:</translation>
    </message>
    <message>
        <source>No printer is chosen</source>
        <translation>لم تُختر أي طابعة</translation>
    </message>
    <message>
        <source>No document</source>
        <translation>لا يوجد مستند</translation>
    </message>
    <message>
        <source>Printed into %1</source>
        <translation>طُبع إلى %1</translation>
    </message>
    <message>
        <source>Sent to %1, job %2</source>
        <translation>أُرسل إلى %1، المهمة %2</translation>
    </message>
    <message>
        <source>The printer is no longer there</source>
        <translation>لم تعد الطابعة موجودة</translation>
    </message>
    <message>
        <source>%1 is no longer on the print server. Choose another printer.</source>
        <translation>لم تعد %1 موجودة على خادم الطباعة. اختر طابعة أخرى.</translation>
    </message>
</context>
<context>
    <name>orvek::PrinterChooser</name>
    <message>
        <source>%1 (default)</source>
        <translation>%1 (الافتراضية)</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>الطابعة</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ملف</translation>
    </message>
    <message>
        <source>File (%1)</source>
        <translation>ملف (%1)</translation>
    </message>
    <message>
        <source>File (needs a printer description)</source>
        <translation>ملف (يتطلب وصف طابعة)</translation>
    </message>
    <message>
        <source>No printers: %1</source>
        <translation>لا طابعات: %1</translation>
    </message>
    <message>
        <source>Open Printer Description…</source>
        <translation>فتح وصف طابعة…</translation>
    </message>
    <message>
        <source>Prints into a file</source>
        <translation>يطبع إلى ملف</translation>
    </message>
    <message>
        <source>Choose a printer, or open a printer description</source>
        <translation>اختر طابعة أو افتح وصف طابعة</translation>
    </message>
    <message>
        <source>Asking for the printers…</source>
        <translation>جارٍ السؤال عن الطابعات…</translation>
    </message>
    <message>
        <source>No longer on the print server</source>
        <translation>لم تعد موجودة على خادم الطباعة</translation>
    </message>
</context>
<context>
    <name>orvek::PrinterModel</name>
    <message>
        <source>used lately</source>
        <translation>استُخدمت مؤخرًا</translation>
    </message>
</context>
<context>
    <name>orvek::PrinterPopup</name>
    <message>
        <source>No printer matches</source>
        <translation>لا توجد طابعة مطابقة</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>إعادة المحاولة</translation>
    </message>
    <message>
        <source>Printers</source>
        <translation>طابعات</translation>
    </message>
    <message>
        <source>Search for name, description or location</source>
        <translation>البحث بالاسم أو الوصف أو الموقع</translation>
    </message>
</context>
<context>
    <name>orvek::ProgressText</name>
    <message>
        <source>Printing…</source>
        <translation>جارٍ الطباعة…</translation>
    </message>
    <message>
        <source>page %1</source>
        <translation>الصفحة %1</translation>
    </message>
    <message>
        <source>Printing: %1</source>
        <translation>جارٍ الطباعة: %1</translation>
    </message>
    <message>
        <source>Printing document %1 of %2: %3</source>
        <translation>جارٍ طباعة المستند %1 من %2: %3</translation>
    </message>
</context>
<context>
    <name>orvek::Queue</name>
    <message>
        <source>Connecting to the printer</source>
        <translation>جارٍ الاتصال بالطابعة</translation>
    </message>
    <message>
        <source>A cover is open</source>
        <translation>غطاء مفتوح</translation>
    </message>
    <message>
        <source>The printer&apos;s filter can be changed by others and is not run</source>
        <translation>يمكن للآخرين تغيير مرشح الطابعة، لذا لا يُشغَّل</translation>
    </message>
    <message>
        <source>The printer&apos;s filter is missing</source>
        <translation>مرشح الطابعة مفقود</translation>
    </message>
    <message>
        <source>A door is open</source>
        <translation>باب مفتوح</translation>
    </message>
    <message>
        <source>A paper tray is missing</source>
        <translation>درج ورق مفقود</translation>
    </message>
    <message>
        <source>Toner or ink is empty</source>
        <translation>نفد مسحوق الحبر أو الحبر</translation>
    </message>
    <message>
        <source>Toner or ink is low</source>
        <translation>مسحوق الحبر أو الحبر منخفض</translation>
    </message>
    <message>
        <source>The waste container is almost full</source>
        <translation>حاوية المخلفات شبه ممتلئة</translation>
    </message>
    <message>
        <source>The waste container is full</source>
        <translation>حاوية المخلفات ممتلئة</translation>
    </message>
    <message>
        <source>Out of paper</source>
        <translation>لا يوجد ورق</translation>
    </message>
    <message>
        <source>Paper jam</source>
        <translation>انحشار الورق</translation>
    </message>
    <message>
        <source>Paper is low</source>
        <translation>الورق قليل</translation>
    </message>
    <message>
        <source>Paper has to be put in</source>
        <translation>يجب وضع ورق</translation>
    </message>
    <message>
        <source>Stopping</source>
        <translation>جارٍ التوقف</translation>
    </message>
    <message>
        <source>The printer is offline</source>
        <translation>الطابعة غير متصلة</translation>
    </message>
    <message>
        <source>The printer reports a problem</source>
        <translation>تبلّغ الطابعة عن مشكلة</translation>
    </message>
    <message>
        <source>The output tray is almost full</source>
        <translation>درج الإخراج شبه ممتلئ</translation>
    </message>
    <message>
        <source>The output tray is full</source>
        <translation>درج الإخراج ممتلئ</translation>
    </message>
    <message>
        <source>The output tray is missing</source>
        <translation>درج الإخراج مفقود</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>متوقفة مؤقتًا</translation>
    </message>
    <message>
        <source>The printer is switched off</source>
        <translation>الطابعة مطفأة</translation>
    </message>
    <message>
        <source>The printer&apos;s memory is full</source>
        <translation>ذاكرة الطابعة ممتلئة</translation>
    </message>
    <message>
        <source>Part of the printer is stopped</source>
        <translation>جزء من الطابعة متوقف</translation>
    </message>
    <message>
        <source>The printer does not answer</source>
        <translation>لا تجيب الطابعة</translation>
    </message>
    <message>
        <source>Toner is empty</source>
        <translation>نفد مسحوق الحبر</translation>
    </message>
    <message>
        <source>Toner is low</source>
        <translation>مسحوق الحبر منخفض</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>جاهزة</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>جارٍ الطباعة</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>متوقفة</translation>
    </message>
    <message>
        <source>State unknown</source>
        <translation>الحالة غير معروفة</translation>
    </message>
    <message>
        <source>, takes no jobs</source>
        <translation>، لا تقبل مهامّ</translation>
    </message>
</context>
<context>
    <name>orvek::SavePlace</name>
    <message>
        <source>Printed</source>
        <translation>طُبع</translation>
    </message>
    <message>
        <source>Print into a File</source>
        <translation>الطباعة إلى ملف</translation>
    </message>
    <message>
        <source>PDF of the sheets (*.pdf)</source>
        <translation>ملف PDF للأوراق (*.pdf)</translation>
    </message>
    <message>
        <source>As the printer takes it (*.ps *.prn)</source>
        <translation>بلغة الطابعة (*.ps *.prn)</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>طباعة</translation>
    </message>
    <message>
        <source>Printed into %1.</source>
        <translation>طُبع إلى %1.</translation>
    </message>
    <message>
        <source>&amp;Show in Folder</source>
        <translation>عرض في المجلد (&amp;S)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
</context>
<context>
    <name>orvek::SessionJob</name>
    <message>
        <source>Booklet was set to Off: it can&apos;t be combined with several pages per sheet</source>
        <translation>ضُبط الكتيب على «إيقاف»: لا يمكن الجمع بينه وبين عدة صفحات لكل ورقة</translation>
    </message>
</context>
<context>
    <name>orvek::SessionView</name>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>الملخص</translation>
    </message>
    <message>
        <source>General</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>مزيد من الخيارات</translation>
    </message>
</context>
<context>
    <name>orvek::SheetsView</name>
    <message>
        <source>%1, back</source>
        <translation>%1، ظهر</translation>
    </message>
</context>
<context>
    <name>orvek::SpokenSide</name>
    <message>
        <source>page %1</source>
        <translation>الصفحة %1</translation>
    </message>
    <message>
        <source>page %1 left</source>
        <translation>الصفحة %1 إلى اليسار</translation>
    </message>
    <message>
        <source>page %1 right</source>
        <translation>الصفحة %1 إلى اليمين</translation>
    </message>
    <message>
        <source>blank</source>
        <translation>فارغ</translation>
    </message>
    <message>
        <source>Sheet %1 of %2</source>
        <translation>الورقة %1 من %2</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, front</source>
        <translation>الورقة %1 من %2، وجه</translation>
    </message>
    <message>
        <source>Sheet %1 of %2, back</source>
        <translation>الورقة %1 من %2، ظهر</translation>
    </message>
    <message>
        <source>1 staple</source>
        <translation>دبوس واحد</translation>
    </message>
    <message numerus="yes">
        <source>%n staples</source>
        <translation>
            <numerusform>%n دبوس</numerusform>
            <numerusform>دبوس واحد</numerusform>
            <numerusform>دبوسان</numerusform>
            <numerusform>%n دبابيس</numerusform>
            <numerusform>%n دبوسًا</numerusform>
            <numerusform>%n دبوس</numerusform>
        </translation>
    </message>
    <message>
        <source>1 hole</source>
        <translation>ثقب واحد</translation>
    </message>
    <message numerus="yes">
        <source>%n holes</source>
        <translation>
            <numerusform>%n ثقب</numerusform>
            <numerusform>ثقب واحد</numerusform>
            <numerusform>ثقبان</numerusform>
            <numerusform>%n ثقوب</numerusform>
            <numerusform>%n ثقبًا</numerusform>
            <numerusform>%n ثقب</numerusform>
        </translation>
    </message>
    <message>
        <source>, </source>
        <translation>، </translation>
    </message>
    <message>
        <source>Sheet %1, front: %2</source>
        <translation>الورقة %1، وجه: %2</translation>
    </message>
    <message>
        <source>Sheet %1, back: %2</source>
        <translation>الورقة %1، ظهر: %2</translation>
    </message>
    <message>
        <source>saddle fold</source>
        <translation>طية سرجية</translation>
    </message>
    <message>
        <source>single fold</source>
        <translation>طية واحدة</translation>
    </message>
</context>
<context>
    <name>orvek::StandardNames</name>
    <message>
        <source>One staple, portrait</source>
        <translation>دبوس واحد، عمودي</translation>
    </message>
    <message>
        <source>One staple, landscape</source>
        <translation>دبوس واحد، أفقي</translation>
    </message>
    <message>
        <source>Two staples, portrait</source>
        <translation>دبوسان، عمودي</translation>
    </message>
    <message>
        <source>Two staples, landscape</source>
        <translation>دبوسان، أفقي</translation>
    </message>
    <message>
        <source>Saddle stitch</source>
        <translation>تدبيس سرجي</translation>
    </message>
    <message>
        <source>Accordion fold</source>
        <translation>طية أكورديون</translation>
    </message>
    <message>
        <source>Double gate fold</source>
        <translation>طية بوابة مزدوجة</translation>
    </message>
    <message>
        <source>Gate fold</source>
        <translation>طية بوابة</translation>
    </message>
    <message>
        <source>Half fold</source>
        <translation>طية من المنتصف</translation>
    </message>
    <message>
        <source>Half Z fold</source>
        <translation>نصف طية Z</translation>
    </message>
    <message>
        <source>Left gate fold</source>
        <translation>طية بوابة يسرى</translation>
    </message>
    <message>
        <source>Letter fold</source>
        <translation>طية رسالة</translation>
    </message>
    <message>
        <source>Parallel fold</source>
        <translation>طية متوازية</translation>
    </message>
    <message>
        <source>Poster fold</source>
        <translation>طية ملصق</translation>
    </message>
    <message>
        <source>Right gate fold</source>
        <translation>طية بوابة يمنى</translation>
    </message>
    <message>
        <source>Z fold</source>
        <translation>طية Z</translation>
    </message>
    <message>
        <source>Engineering Z fold</source>
        <translation>طية Z للمخططات</translation>
    </message>
    <message>
        <source>Saddle fold</source>
        <translation>طية سرجية</translation>
    </message>
    <message>
        <source>Staple</source>
        <translation>تدبيس</translation>
    </message>
    <message>
        <source>Punch</source>
        <translation>تثقيب</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>غلاف</translation>
    </message>
    <message>
        <source>Binding</source>
        <translation>تجليد</translation>
    </message>
    <message>
        <source>Edge stitch</source>
        <translation>تدبيس الحافة</translation>
    </message>
    <message>
        <source>Fold</source>
        <translation>طي</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>قص</translation>
    </message>
    <message>
        <source>Booklet</source>
        <translation>كتيب</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>إزاحة</translation>
    </message>
    <message>
        <source>Coating</source>
        <translation>طلاء</translation>
    </message>
    <message>
        <source>Laminating</source>
        <translation>تغليف بالبلاستيك</translation>
    </message>
    <message>
        <source>Two staples</source>
        <translation>دبوسان</translation>
    </message>
    <message>
        <source>Three staples</source>
        <translation>ثلاثة دبابيس</translation>
    </message>
    <message>
        <source>One staple</source>
        <translation>دبوس واحد</translation>
    </message>
    <message>
        <source>Two holes</source>
        <translation>ثقبان</translation>
    </message>
    <message>
        <source>Three holes</source>
        <translation>ثلاثة ثقوب</translation>
    </message>
    <message>
        <source>Four holes</source>
        <translation>أربعة ثقوب</translation>
    </message>
    <message>
        <source>Many holes</source>
        <translation>عدة ثقوب</translation>
    </message>
    <message>
        <source>One hole</source>
        <translation>ثقب واحد</translation>
    </message>
    <message>
        <source>After each page</source>
        <translation>بعد كل صفحة</translation>
    </message>
    <message>
        <source>After each document</source>
        <translation>بعد كل مستند</translation>
    </message>
    <message>
        <source>After each copy</source>
        <translation>بعد كل نسخة</translation>
    </message>
    <message>
        <source>After the job</source>
        <translation>بعد المهمة</translation>
    </message>
    <message>
        <source>top left</source>
        <translation>أعلى اليسار</translation>
    </message>
    <message>
        <source>top right</source>
        <translation>أعلى اليمين</translation>
    </message>
    <message>
        <source>bottom left</source>
        <translation>أسفل اليسار</translation>
    </message>
    <message>
        <source>bottom right</source>
        <translation>أسفل اليمين</translation>
    </message>
    <message>
        <source>left</source>
        <translation>اليسار</translation>
    </message>
    <message>
        <source>right</source>
        <translation>اليمين</translation>
    </message>
    <message>
        <source>top</source>
        <translation>الأعلى</translation>
    </message>
    <message>
        <source>bottom</source>
        <translation>الأسفل</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1، %2</translation>
    </message>
    <message>
        <source>%1 dpi</source>
        <translation>%1 نقطة في البوصة</translation>
    </message>
    <message>
        <source>%1 × %2 dpi</source>
        <translation>%1 × %2 نقطة في البوصة</translation>
    </message>
    <message>
        <source>%1 × %2 mm</source>
        <translation>%1 × %2 مم</translation>
    </message>
    <message>
        <source>Paper size for manual feed</source>
        <translation>حجم الورق للتغذية اليدوية</translation>
    </message>
    <message>
        <source>Paper size</source>
        <translation>حجم الورق</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>مخصص</translation>
    </message>
    <message>
        <source>General</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>Installed equipment</source>
        <translation>التجهيزات المثبتة</translation>
    </message>
    <message>
        <source>Further options</source>
        <translation>خيارات أخرى</translation>
    </message>
    <message>
        <source>Two-sided</source>
        <translation>على الوجهين</translation>
    </message>
    <message>
        <source>Upper tray</source>
        <translation>الدرج العلوي</translation>
    </message>
    <message>
        <source>Middle tray</source>
        <translation>الدرج الأوسط</translation>
    </message>
    <message>
        <source>Lower tray</source>
        <translation>الدرج السفلي</translation>
    </message>
    <message>
        <source>Rear tray</source>
        <translation>الدرج الخلفي</translation>
    </message>
    <message>
        <source>Side tray</source>
        <translation>الدرج الجانبي</translation>
    </message>
    <message>
        <source>Left tray</source>
        <translation>الدرج الأيسر</translation>
    </message>
    <message>
        <source>Right tray</source>
        <translation>الدرج الأيمن</translation>
    </message>
    <message>
        <source>Center tray</source>
        <translation>الدرج المركزي</translation>
    </message>
    <message>
        <source>Manual feed</source>
        <translation>تغذية يدوية</translation>
    </message>
    <message>
        <source>Bypass tray</source>
        <translation>الدرج الجانبي الإضافي</translation>
    </message>
    <message>
        <source>Multipurpose tray</source>
        <translation>درج متعدد الأغراض</translation>
    </message>
    <message>
        <source>Large-capacity tray</source>
        <translation>درج عالي السعة</translation>
    </message>
    <message>
        <source>Envelope feeder</source>
        <translation>وحدة تغذية المظاريف</translation>
    </message>
    <message>
        <source>Main tray</source>
        <translation>الدرج الرئيسي</translation>
    </message>
    <message>
        <source>Alternate tray</source>
        <translation>الدرج البديل</translation>
    </message>
    <message>
        <source>Photo tray</source>
        <translation>درج الصور</translation>
    </message>
    <message>
        <source>Disc tray</source>
        <translation>درج الأقراص</translation>
    </message>
    <message>
        <source>Cassette</source>
        <translation>الكاسيت</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>اللفة</translation>
    </message>
    <message>
        <source>Tractor feed</source>
        <translation>تغذية بالسحب</translation>
    </message>
    <message>
        <source>Tray %1</source>
        <translation>الدرج %1</translation>
    </message>
    <message>
        <source>Cassette %1</source>
        <translation>الكاسيت %1</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>اللفة %1</translation>
    </message>
    <message>
        <source>Standard tray</source>
        <translation>الدرج القياسي</translation>
    </message>
    <message>
        <source>Face down</source>
        <translation>الوجه إلى أسفل</translation>
    </message>
    <message>
        <source>Face up</source>
        <translation>الوجه إلى أعلى</translation>
    </message>
    <message>
        <source>Stacker</source>
        <translation>المكدّس</translation>
    </message>
    <message>
        <source>Mailbox</source>
        <translation>صندوق البريد</translation>
    </message>
    <message>
        <source>Finisher tray</source>
        <translation>درج وحدة الإنهاء</translation>
    </message>
    <message>
        <source>Booklet tray</source>
        <translation>درج الكتيبات</translation>
    </message>
    <message>
        <source>Stacker %1</source>
        <translation>المكدّس %1</translation>
    </message>
    <message>
        <source>Mailbox %1</source>
        <translation>صندوق البريد %1</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>عادي</translation>
    </message>
    <message>
        <source>Recycled</source>
        <translation>معاد تدويره</translation>
    </message>
    <message>
        <source>Letterhead</source>
        <translation>ورق بترويسة</translation>
    </message>
    <message>
        <source>Prepunched</source>
        <translation>مثقوب مسبقًا</translation>
    </message>
    <message>
        <source>Preprinted</source>
        <translation>مطبوع مسبقًا</translation>
    </message>
    <message>
        <source>Bond</source>
        <translation>ورق سندات</translation>
    </message>
    <message>
        <source>Heavy</source>
        <translation>ثقيل</translation>
    </message>
    <message>
        <source>Thin</source>
        <translation>رقيق</translation>
    </message>
    <message>
        <source>Coated</source>
        <translation>مصقول</translation>
    </message>
    <message>
        <source>Card stock</source>
        <translation>ورق مقوى</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>ملصقات</translation>
    </message>
    <message>
        <source>Transparencies</source>
        <translation>شفافيات</translation>
    </message>
    <message>
        <source>Envelopes</source>
        <translation>مظاريف</translation>
    </message>
    <message>
        <source>Glossy</source>
        <translation>لامع</translation>
    </message>
    <message>
        <source>Photo paper</source>
        <translation>ورق صور</translation>
    </message>
    <message>
        <source>High-gloss photo paper</source>
        <translation>ورق صور عالي اللمعان</translation>
    </message>
    <message>
        <source>Matte photo paper</source>
        <translation>ورق صور مطفأ</translation>
    </message>
    <message>
        <source>Semi-gloss photo paper</source>
        <translation>ورق صور نصف لامع</translation>
    </message>
    <message>
        <source>Matte</source>
        <translation>مطفأ</translation>
    </message>
    <message>
        <source>Colored</source>
        <translation>ملون</translation>
    </message>
    <message>
        <source>Rough</source>
        <translation>خشن</translation>
    </message>
    <message>
        <source>Tab stock</source>
        <translation>ورق فواصل</translation>
    </message>
    <message>
        <source>Vellum</source>
        <translation>رق</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>متصل</translation>
    </message>
    <message>
        <source>Disc</source>
        <translation>قرص</translation>
    </message>
    <message>
        <source>Fine paper</source>
        <translation>ورق فاخر</translation>
    </message>
    <message>
        <source>Cotton</source>
        <translation>ورق قطني</translation>
    </message>
    <message>
        <source>US Letter</source>
        <translation>ليتر أمريكي</translation>
    </message>
    <message>
        <source>US Legal</source>
        <translation>ليغال أمريكي</translation>
    </message>
    <message>
        <source>Tabloid</source>
        <translation>تابلويد</translation>
    </message>
    <message>
        <source>Ledger</source>
        <translation>ليدجر</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>ستيتمنت</translation>
    </message>
    <message>
        <source>Executive</source>
        <translation>إكزكيوتيف</translation>
    </message>
    <message>
        <source>Folio</source>
        <translation>فوليو</translation>
    </message>
    <message>
        <source>Oficio</source>
        <translation>أوفيسيو</translation>
    </message>
    <message>
        <source>Postcard</source>
        <translation>بطاقة بريدية</translation>
    </message>
    <message>
        <source>Double postcard</source>
        <translation>بطاقة بريدية مزدوجة</translation>
    </message>
    <message>
        <source>Envelope No. 10</source>
        <translation>مظروف رقم 10</translation>
    </message>
    <message>
        <source>Envelope No. 9</source>
        <translation>مظروف رقم 9</translation>
    </message>
    <message>
        <source>Envelope DL</source>
        <translation>مظروف DL</translation>
    </message>
    <message>
        <source>Envelope C4</source>
        <translation>مظروف C4</translation>
    </message>
    <message>
        <source>Envelope C5</source>
        <translation>مظروف C5</translation>
    </message>
    <message>
        <source>Envelope C6</source>
        <translation>مظروف C6</translation>
    </message>
    <message>
        <source>Envelope B5</source>
        <translation>مظروف B5</translation>
    </message>
    <message>
        <source>Envelope Monarch</source>
        <translation>مظروف مونارك</translation>
    </message>
    <message>
        <source>Envelope A2</source>
        <translation>مظروف A2</translation>
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
        <translation>A3 كبير</translation>
    </message>
    <message>
        <source>3 × 5 in</source>
        <translation>3 × 5 بوصة</translation>
    </message>
    <message>
        <source>4 × 6 in</source>
        <translation>4 × 6 بوصة</translation>
    </message>
    <message>
        <source>5 × 7 in</source>
        <translation>5 × 7 بوصة</translation>
    </message>
    <message>
        <source>5 × 8 in</source>
        <translation>5 × 8 بوصة</translation>
    </message>
    <message>
        <source>8 × 10 in</source>
        <translation>8 × 10 بوصة</translation>
    </message>
    <message>
        <source>US Foolscap</source>
        <translation>فولسكاب أمريكي</translation>
    </message>
    <message>
        <source>%1, borderless</source>
        <translation>%1، بلا حواف</translation>
    </message>
    <message>
        <source>%1, rotated</source>
        <translation>%1، مُدوَّر</translation>
    </message>
    <message>
        <source>%1, oversize</source>
        <translation>%1، كبير</translation>
    </message>
    <message>
        <source>%1, large margins</source>
        <translation>%1، هوامش واسعة</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>إيقاف</translation>
    </message>
    <message>
        <source>Long edge</source>
        <translation>الحافة الطويلة</translation>
    </message>
    <message>
        <source>Short edge</source>
        <translation>الحافة القصيرة</translation>
    </message>
    <message>
        <source>On</source>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>Black and white</source>
        <translation>أبيض وأسود</translation>
    </message>
    <message>
        <source>Pure black and white</source>
        <translation>أبيض وأسود خالص</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>ألوان</translation>
    </message>
    <message>
        <source>Color (CMYK)</source>
        <translation>ألوان (CMYK)</translation>
    </message>
    <message>
        <source>Color (CMY)</source>
        <translation>ألوان (CMY)</translation>
    </message>
    <message>
        <source>Color (Adobe RGB)</source>
        <translation>ألوان (Adobe RGB)</translation>
    </message>
    <message>
        <source>Color (16 bits)</source>
        <translation>ألوان (16 بت)</translation>
    </message>
    <message>
        <source>Black and white (16 bits)</source>
        <translation>أبيض وأسود (16 بت)</translation>
    </message>
    <message>
        <source>Draft</source>
        <translation>مسودة</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>عادية</translation>
    </message>
    <message>
        <source>High</source>
        <translation>عالية</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>الأفضل</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>سريعة</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>قياسية</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>صورة</translation>
    </message>
    <message>
        <source>First page first</source>
        <translation>الصفحة الأولى أولاً</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>الصفحة الأخيرة أولاً</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>تلقائي</translation>
    </message>
    <message>
        <source>Printer’s default</source>
        <translation>افتراضي الطابعة</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>أخرى</translation>
    </message>
    <message>
        <source>Paper source</source>
        <translation>مصدر الورق</translation>
    </message>
    <message>
        <source>Paper type</source>
        <translation>نوع الورق</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>الجودة</translation>
    </message>
    <message>
        <source>Output tray</source>
        <translation>درج الإخراج</translation>
    </message>
    <message>
        <source>Stapling</source>
        <translation>التدبيس</translation>
    </message>
    <message>
        <source>Folding</source>
        <translation>الطي</translation>
    </message>
    <message>
        <source>Hole punch</source>
        <translation>التثقيب</translation>
    </message>
    <message>
        <source>Finishing</source>
        <translation>الإنهاء</translation>
    </message>
    <message>
        <source>Cutting</source>
        <translation>القص</translation>
    </message>
    <message>
        <source>Page order</source>
        <translation>ترتيب الصفحات</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>الدقة</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>ترتيب النسخ</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>صفحات لكل ورقة</translation>
    </message>
    <message>
        <source>Tray switching</source>
        <translation>تبديل الدرج</translation>
    </message>
    <message>
        <source>Mirror image</source>
        <translation>صورة معكوسة</translation>
    </message>
    <message>
        <source>Negative</source>
        <translation>سلبي</translation>
    </message>
    <message>
        <source>Smoothing</source>
        <translation>التنعيم</translation>
    </message>
    <message>
        <source>Slip sheets</source>
        <translation>أوراق فاصلة</translation>
    </message>
    <message>
        <source>Toner saving</source>
        <translation>توفير الحبر</translation>
    </message>
    <message>
        <source>Paper color</source>
        <translation>لون الورق</translation>
    </message>
    <message>
        <source>Paper weight</source>
        <translation>وزن الورق</translation>
    </message>
    <message>
        <source>All pages</source>
        <translation>كل الصفحات</translation>
    </message>
    <message>
        <source>Odd pages only</source>
        <translation>الصفحات الفردية فقط</translation>
    </message>
    <message>
        <source>Even pages only</source>
        <translation>الصفحات الزوجية فقط</translation>
    </message>
    <message>
        <source>Fit to page</source>
        <translation>ملاءمة الصفحة</translation>
    </message>
    <message>
        <source>Fill the page</source>
        <translation>ملء الصفحة</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>الحجم الفعلي</translation>
    </message>
    <message>
        <source>Left to right, then down</source>
        <translation>من اليسار إلى اليمين ثم إلى الأسفل</translation>
    </message>
    <message>
        <source>Right to left, then down</source>
        <translation>من اليمين إلى اليسار ثم إلى الأسفل</translation>
    </message>
    <message>
        <source>Left to right, then up</source>
        <translation>من اليسار إلى اليمين ثم إلى الأعلى</translation>
    </message>
    <message>
        <source>Right to left, then up</source>
        <translation>من اليمين إلى اليسار ثم إلى الأعلى</translation>
    </message>
    <message>
        <source>Down, then left to right</source>
        <translation>إلى الأسفل ثم من اليسار إلى اليمين</translation>
    </message>
    <message>
        <source>Down, then right to left</source>
        <translation>إلى الأسفل ثم من اليمين إلى اليسار</translation>
    </message>
    <message>
        <source>Up, then left to right</source>
        <translation>إلى الأعلى ثم من اليسار إلى اليمين</translation>
    </message>
    <message>
        <source>Up, then right to left</source>
        <translation>إلى الأعلى ثم من اليمين إلى اليسار</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>نموذج</translation>
    </message>
    <message>
        <source>Classified</source>
        <translation>مصنّف</translation>
    </message>
    <message>
        <source>Confidential</source>
        <translation>خصوصي</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>سري</translation>
    </message>
    <message>
        <source>Top secret</source>
        <translation>سري للغاية</translation>
    </message>
    <message>
        <source>Unclassified</source>
        <translation>غير مصنّف</translation>
    </message>
    <message>
        <source>At once</source>
        <translation>فورًا</translation>
    </message>
    <message>
        <source>When released</source>
        <translation>عند الإفراج عنها</translation>
    </message>
    <message>
        <source>By day</source>
        <translation>نهارًا</translation>
    </message>
    <message>
        <source>In the evening</source>
        <translation>مساءً</translation>
    </message>
    <message>
        <source>At night</source>
        <translation>ليلًا</translation>
    </message>
    <message>
        <source>At the weekend</source>
        <translation>في عطلة نهاية الأسبوع</translation>
    </message>
    <message>
        <source>In the second shift</source>
        <translation>في الوردية الثانية</translation>
    </message>
    <message>
        <source>In the third shift</source>
        <translation>في الوردية الثالثة</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>منخفضة</translation>
    </message>
    <message>
        <source>Urgent</source>
        <translation>عاجلة</translation>
    </message>
    <message>
        <source>Odd and even pages</source>
        <translation>الصفحات الفردية والزوجية</translation>
    </message>
    <message>
        <source>Adjust size</source>
        <translation>القياس</translation>
    </message>
    <message>
        <source>Sequence on the sheet</source>
        <translation>الترتيب على الورقة</translation>
    </message>
    <message>
        <source>Banner page</source>
        <translation>صفحة ترويسة</translation>
    </message>
    <message>
        <source>Start printing</source>
        <translation>بدء الطباعة</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>الأولوية</translation>
    </message>
</context>
<context>
    <name>orvek::SummaryLines</name>
    <message>
        <source>Copies</source>
        <translation>النسخ</translation>
    </message>
    <message>
        <source>Set by set</source>
        <translation>مجموعة تلو الأخرى</translation>
    </message>
    <message>
        <source>Page by page</source>
        <translation>صفحة تلو الأخرى</translation>
    </message>
    <message>
        <source>Order of copies</source>
        <translation>ترتيب النسخ في الطباعة</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>الصفحات</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>الاتجاه</translation>
    </message>
    <message>
        <source>Page order</source>
        <translation>ترتيب الصفحات</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>الصفحة الأخيرة أولاً</translation>
    </message>
    <message>
        <source>Pages per sheet</source>
        <translation>صفحات لكل ورقة</translation>
    </message>
</context>
<context>
    <name>orvek::SummaryView</name>
    <message>
        <source>%1: %2 (changed)</source>
        <translation>%1: %2 (متغيّر)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>الملخص</translation>
    </message>
    <message>
        <source>All settings of the job; those that were changed come first</source>
        <translation>كل إعدادات المهمة، والمتغيرة منها أولاً</translation>
    </message>
</context>
<context>
    <name>orvek::TicketBounds</name>
    <message>
        <source>Copies was set to 1: less is no job</source>
        <translation>ضُبط عدد النسخ على 1: أقل من ذلك ليس مهمة</translation>
    </message>
    <message>
        <source>Copies was set to %1: no job makes more</source>
        <translation>ضُبط عدد النسخ على %1: لا تُنتج أي مهمة أكثر من ذلك</translation>
    </message>
</context>
<context>
    <name>orvek::UnderstoodNote</name>
    <message>
        <source>%1 still applies</source>
        <translation>ما زال %1 ساريًا</translation>
    </message>
    <message>
        <source>“%1” was read as %2</source>
        <translation>قُرئ «%1» على أنه %2</translation>
    </message>
</context>
<context>
    <name>orvek::Wording</name>
    <message>
        <source>%1 was set to %2: it can&apos;t be combined with %3</source>
        <translation>ضُبط %1 على «%2»: لا يمكن الجمع بينه وبين «%3»</translation>
    </message>
    <message>
        <source>%1 was not set to %2: it can&apos;t be combined with %3</source>
        <translation>لم يُضبط %1 على «%2»: لا يمكن الجمع بينه وبين «%3»</translation>
    </message>
</context>
</TS>
