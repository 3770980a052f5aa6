# SPDX-License-Identifier: Apache-2.0
#
# The printers' texts in further languages, by the English one, in the words of the glossaries in
# host/translations/glossary/.

LANGUAGES = ("es", "it", "pt", "ko", "zh_CN", "ar")

TEXTS = {
    "600 dpi": ("600 ppp", "600 dpi", "600 ppp", "600 dpi", "600 dpi", "600 نقطة في البوصة"),
    "1200 dpi": (
        "1200 ppp", "1200 dpi", "1200 ppp",
        "1200 dpi", "1200 dpi", "1200 نقطة في البوصة"),
    "2 holes (metric)": (
        "2 agujeros (métrico)", "2 fori (metrico)", "2 furos (métrico)",
        "2공(미터법)", "2 孔（公制）", "ثقبان (متري)"),
    "3 holes (US)": (
        "3 agujeros (EE. UU.)", "3 fori (USA)", "3 furos (EUA)",
        "3공(미국)", "3 孔（美制）", "3 ثقوب (أمريكي)"),
    "4 holes (metric)": (
        "4 agujeros (métrico)", "4 fori (metrico)", "4 furos (métrico)",
        "4공(미터법)", "4 孔（公制）", "4 ثقوب (متري)"),
    "2 trays": ("2 bandejas", "2 vassoi", "2 bandejas", "용지함 2개", "2 个纸盒", "درجان"),
    "4 trays": ("4 bandejas", "4 vassoi", "4 bandejas", "용지함 4개", "4 个纸盒", "4 أدراج"),
    "Automatic": ("Automático", "Automatico", "Automático", "자동", "自动", "تلقائي"),
    "Black and white": (
        "Blanco y negro", "Bianco e nero", "Preto e branco",
        "흑백", "黑白", "أبيض وأسود"),
    "Booklet tray": (
        "Bandeja de folletos", "Vassoio opuscoli", "Bandeja de livretos",
        "소책자 용지함", "小册子纸盒", "درج الكتيبات"),
    "Bypass tray": (
        "Bandeja especial", "Vassoio bypass", "Bandeja auxiliar",
        "보조 용지함", "旁路纸盒", "الدرج الجانبي الإضافي"),
    "Coated": ("Estucado", "Patinata", "Revestido", "코팅 용지", "涂布纸", "مصقول"),
    "Collate copies": (
        "Intercalar copias", "Fascicola le copie", "Agrupar cópias",
        "한 부씩 인쇄", "逐份打印", "ترتيب النسخ"),
    "Color": ("Color", "Colore", "Cor", "컬러", "彩色", "ألوان"),
    "Color mode": (
        "Modo de color", "Modalità colore", "Modo de cor",
        "컬러 모드", "色彩模式", "وضع الألوان"),
    "Custom": ("Personalizado", "Personalizzato", "Personalizado", "사용자 정의", "自定义", "مخصص"),
    "Envelope C5": ("Sobre C5", "Busta C5", "Envelope C5", "봉투 C5", "C5 信封", "مظروف C5"),
    "Envelope DL": ("Sobre DL", "Busta DL", "Envelope DL", "봉투 DL", "DL 信封", "مظروف DL"),
    "Envelope No. 10": (
        "Sobre n.º 10", "Busta n. 10", "Envelope nº 10",
        "봉투 10호", "10 号信封", "مظروف رقم 10"),
    "Envelopes": ("Sobres", "Buste", "Envelopes", "봉투", "信封", "مظاريف"),
    "Executive": ("Ejecutivo", "Executive", "Executivo", "이그제큐티브", "行政公文纸", "إكزكيوتيف"),
    "Finisher": ("Finalizador", "Finisher", "Finalizador", "피니셔", "整理器", "وحدة الإنهاء"),
    "Finisher tray": (
        "Bandeja del finalizador", "Vassoio del finisher", "Bandeja do finalizador",
        "피니셔 용지함", "整理器纸盒", "درج وحدة الإنهاء"),
    "Finishing": ("Acabado", "Finitura", "Acabamento", "마무리", "整理", "الإنهاء"),
    "Folding": ("Plegado", "Piegatura", "Dobra", "접기", "折页", "الطي"),
    "General": ("General", "Generale", "Geral", "일반", "常规", "عام"),
    "Heavy": ("Grueso", "Pesante", "Pesado", "두꺼운 용지", "厚纸", "ثقيل"),
    "Height": ("Alto", "Altezza", "Altura", "높이", "高度", "الارتفاع"),
    "Height offset": (
        "Desplazamiento vertical", "Scostamento in altezza", "Deslocamento na altura",
        "세로 오프셋", "高度偏移", "إزاحة الارتفاع"),
    "Hole punch": ("Perforación", "Foratura", "Perfuração", "펀치", "打孔", "التثقيب"),
    "Image smoothing": (
        "Suavizado de imágenes", "Levigatura delle immagini", "Suavização de imagens",
        "이미지 다듬기", "图像平滑", "تنعيم الصور"),
    "Installed": ("Instalado", "Installato", "Instalado", "설치됨", "已安装", "مثبّت"),
    "Installed equipment": (
        "Equipamiento instalado", "Dotazione installata", "Equipamento instalado",
        "설치된 장비", "已安装的设备", "التجهيزات المثبتة"),
    "Labels": ("Etiquetas", "Etichette", "Etiquetas", "라벨 용지", "标签纸", "ملصقات"),
    "Letterhead": ("Membretado", "Carta intestata", "Timbrado", "레터헤드", "信头纸", "ورق بترويسة"),
    "Long-edge binding": (
        "Borde largo", "Lato lungo", "Borda longa",
        "긴 가장자리 제본", "长边装订", "تجليد على الحافة الطويلة"),
    "Metric (2 and 4 holes)": (
        "Métrico (2 y 4 agujeros)", "Metrico (2 e 4 fori)", "Métrico (2 e 4 furos)",
        "미터법(2공 및 4공)", "公制（2 孔和 4 孔）", "متري (ثقبان و4 ثقوب)"),
    "Not installed": (
        "No instalado", "Non installato", "Não instalado",
        "설치되지 않음", "未安装", "غير مثبّت"),
    "OV raster acceleration": (
        "Aceleración de trama OV", "Accelerazione raster OV", "Aceleração de trama OV",
        "OV 래스터 가속", "OV 光栅加速", "تسريع OV النقطي"),
    "Off": ("Desactivado", "Disattivato", "Desativado", "끔", "关", "إيقاف"),
    "Offset collated sets": (
        "Desplazar juegos intercalados", "Sfalsa le serie fascicolate", "Deslocar conjuntos agrupados",
        "한 부씩 어긋나게 놓기", "逐份错位堆放", "إزاحة المجموعات المرتبة"),
    "Offset tray": (
        "Bandeja de desplazamiento", "Vassoio sfalsato", "Bandeja de deslocamento",
        "오프셋 용지함", "错位纸盒", "درج الإزاحة"),
    "On": ("Activado", "Attivato", "Ativado", "켬", "开", "تشغيل"),
    "One staple, front": (
        "Una grapa, delante", "Un punto, davanti", "Um grampo, frente",
        "1개소, 앞", "一个订书钉，前", "دبوس واحد، أمام"),
    "One staple, front, flipped": (
        "Una grapa, delante, girado", "Un punto, davanti, ruotato", "Um grampo, frente, girado",
        "1개소, 앞, 회전", "一个订书钉，前，翻转", "دبوس واحد، أمام، مقلوب"),
    "One staple, rear": (
        "Una grapa, detrás", "Un punto, dietro", "Um grampo, atrás",
        "1개소, 뒤", "一个订书钉，后", "دبوس واحد، خلف"),
    "One staple, rear, flipped": (
        "Una grapa, detrás, girado", "Un punto, dietro, ruotato", "Um grampo, atrás, girado",
        "1개소, 뒤, 회전", "一个订书钉，后，翻转", "دبوس واحد، خلف، مقلوب"),
    "Orientation": ("Orientación", "Orientamento", "Orientação", "방향", "方向", "الاتجاه"),
    "Output tray": (
        "Bandeja de salida", "Vassoio di uscita", "Bandeja de saída",
        "출력 용지함", "出纸盒", "درج الإخراج"),
    "Paper size": (
        "Tamaño del papel", "Formato carta", "Tamanho do papel",
        "용지 크기", "纸张尺寸", "حجم الورق"),
    "Paper size for manual feed": (
        "Tamaño del papel para alimentación manual", "Formato carta per alimentazione manuale", "Tamanho do papel para alimentação manual",
        "수동 급지 용지 크기", "手动进纸的纸张尺寸", "حجم الورق للتغذية اليدوية"),
    "Paper source": (
        "Origen del papel", "Origine carta", "Origem do papel",
        "용지 공급", "纸张来源", "مصدر الورق"),
    "Paper trays": (
        "Bandejas de papel", "Vassoi carta", "Bandejas de papel",
        "용지함", "纸盒", "أدراج الورق"),
    "Paper type": (
        "Tipo de papel", "Tipo di carta", "Tipo de papel",
        "용지 종류", "纸张类型", "نوع الورق"),
    "Plain": ("Normal", "Comune", "Comum", "일반 용지", "普通纸", "عادي"),
    "Postcard (JIS)": (
        "Postal (JIS)", "Cartolina (JIS)", "Cartão-postal (JIS)",
        "엽서(JIS)", "明信片（JIS）", "بطاقة بريدية (JIS)"),
    "Prepunched": ("Perforado", "Preforata", "Perfurado", "펀치 용지", "预打孔纸", "مثقوب مسبقًا"),
    "Print quality": (
        "Calidad de impresión", "Qualità di stampa", "Qualidade de impressão",
        "인쇄 품질", "打印质量", "جودة الطباعة"),
    "Punch unit": (
        "Unidad de perforación", "Unità di foratura", "Unidade de perfuração",
        "펀치 장치", "打孔单元", "وحدة التثقيب"),
    "Recycled": ("Reciclado", "Riciclata", "Reciclado", "재생지", "再生纸", "معاد تدويره"),
    "Resolution": ("Resolución", "Risoluzione", "Resolução", "해상도", "分辨率", "الدقة"),
    "Saddle fold": (
        "Plegado a caballete", "Piega a sella", "Dobra canoa",
        "중철 접기", "骑马折", "طية سرجية"),
    "Short-edge binding": (
        "Borde corto", "Lato corto", "Borda curta",
        "짧은 가장자리 제본", "短边装订", "تجليد على الحافة القصيرة"),
    "Single fold": (
        "Plegado simple", "Piega singola", "Dobra simples",
        "한 번 접기", "单折", "طية واحدة"),
    "Standard tray": (
        "Bandeja estándar", "Vassoio standard", "Bandeja padrão",
        "표준 용지함", "标准纸盒", "الدرج القياسي"),
    "Stapling": ("Grapado", "Pinzatura", "Grampeamento", "스테이플", "装订", "التدبيس"),
    "Statement": ("Statement", "Statement", "Statement", "스테이트먼트", "报告单", "ستيتمنت"),
    "Tabloid (11 x 17 in)": (
        "Tabloide (11 x 17 pulg.)", "Tabloid (11 x 17 poll.)", "Tabloide (11 x 17 pol.)",
        "타블로이드(11 x 17인치)", "小报（11 x 17 英寸）", "تابلويد (11 × 17 بوصة)"),
    "Toner saving": (
        "Ahorro de tóner", "Risparmio toner", "Economia de toner",
        "토너 절약", "省墨模式", "توفير الحبر"),
    "Transparencies": ("Transparencias", "Lucidi", "Transparências", "투명 필름", "透明胶片", "شفافيات"),
    "Tray 1": ("Bandeja 1", "Vassoio 1", "Bandeja 1", "용지함 1", "纸盒 1", "الدرج 1"),
    "Tray 2": ("Bandeja 2", "Vassoio 2", "Bandeja 2", "용지함 2", "纸盒 2", "الدرج 2"),
    "Tray 3": ("Bandeja 3", "Vassoio 3", "Bandeja 3", "용지함 3", "纸盒 3", "الدرج 3"),
    "Tray 4": ("Bandeja 4", "Vassoio 4", "Bandeja 4", "용지함 4", "纸盒 4", "الدرج 4"),
    "Two staples": ("Dos grapas", "Due punti", "Dois grampos", "2개소", "两个订书钉", "دبوسان"),
    "Two staples, flipped": (
        "Dos grapas, girado", "Due punti, ruotato", "Dois grampos, girado",
        "2개소, 회전", "两个订书钉，翻转", "دبوسان، مقلوب"),
    "Two-sided printing": (
        "Impresión a doble cara", "Stampa fronte-retro", "Impressão frente e verso",
        "양면 인쇄", "双面打印", "الطباعة على الوجهين"),
    "US (3 holes)": (
        "EE. UU. (3 agujeros)", "USA (3 fori)", "EUA (3 furos)",
        "미국(3공)", "美制（3 孔）", "أمريكي (3 ثقوب)"),
    "US Legal": ("Legal (EE. UU.)", "US Legal", "Ofício (EUA)", "리걸", "美国法律文件纸", "ليغال أمريكي"),
    "US Letter": ("Carta (EE. UU.)", "US Letter", "Carta (EUA)", "레터", "美国信纸", "ليتر أمريكي"),
    "Width": ("Ancho", "Larghezza", "Largura", "너비", "宽度", "العرض"),
    "Width offset": (
        "Desplazamiento horizontal", "Scostamento in larghezza", "Deslocamento na largura",
        "가로 오프셋", "宽度偏移", "إزاحة العرض"),
}


def translated(english, language):
    """The text in one of these languages; None where it is not in the table."""
    texts = TEXTS.get(english)
    return texts and texts[LANGUAGES.index(language)]
