#include "tools/SampleLocale.h"

namespace mindloft {
namespace {

using Texts = std::string_view[];

// Russian and Ukrainian
constexpr SampleName kCyrillicGiven[] = {
    {"Алексей", "aleksei"}, {"Галина", "galina"},     {"Дмитрий", "dmitri"},   {"Елена", "elena"},
    {"Игорь", "igor"},      {"Ксения", "ksenia"},     {"Людмила", "liudmila"}, {"Олександр", "oleksandr"},
    {"Пётр", "petr"},       {"Світлана", "svitlana"}, {"Юрій", "yurii"},       {"Ярослав", "yaroslav"}};
constexpr SampleName kCyrillicFamily[] = {
    {"Иванченко", "ivanchenko"}, {"Кузнецов", "kuznetsov"}, {"Левицкая", "levitskaia"},
    {"Морозов", "morozov"},      {"Новиков", "novikov"},    {"Павленко", "pavlenko"},
    {"Соколов", "sokolov"},      {"Тихонов", "tikhonov"},   {"Федоренко", "fedorenko"},
    {"Чернышёв", "chernyshev"},  {"Шевчук", "shevchuk"},    {"Яценко", "yatsenko"}};
constexpr Texts kCyrillicDepartments = {"Бухгалтерия", "Відділ кадрів", "Закупки",
                                        "Обучение",    "Разработка",    "Служба поддержки"};
constexpr Texts kCyrillicDuties = {
    "Обновляет руководства и отвечает на вопросы филиалов", "Проверяет новые статьи перед публикацией",
    "Відповідає за словник і переклади", "Собирает сообщения о неисправностях и готовит по ним статьи"};

// Greek
constexpr SampleName kGreekGiven[] = {{"Αλέξανδρος", "alexandros"}, {"Βασιλική", "vasiliki"},
                                      {"Γεώργιος", "georgios"},     {"Ελένη", "eleni"},
                                      {"Θεόδωρος", "theodoros"},    {"Κωνσταντίνα", "konstantina"},
                                      {"Νίκος", "nikos"},           {"Σοφία", "sofia"}};
constexpr SampleName kGreekFamily[] = {{"Αντωνίου", "antoniou"},   {"Γεωργιάδης", "georgiadis"},
                                       {"Δημητρίου", "dimitriou"}, {"Καλογεράς", "kalogeras"},
                                       {"Μακρής", "makris"},       {"Νικολάου", "nikolaou"},
                                       {"Οικονόμου", "ikonomou"},  {"Ψαρράς", "psarras"}};
constexpr Texts kGreekDepartments = {"Εκπαίδευση", "Εξυπηρέτηση πελατών", "Λογιστήριο", "Προμήθειες"};
constexpr Texts kGreekDuties = {"Ενημερώνει τα εγχειρίδια και απαντά στις ερωτήσεις των υποκαταστημάτων",
                                "Ελέγχει τα νέα άρθρα πριν από τη δημοσίευση"};

// Chinese
constexpr SampleName kChineseGiven[] = {
    {"伟", "wei"},    {"秀英", "xiuying"}, {"建国", "jianguo"}, {"晓燕", "xiaoyan"}, {"志强", "zhiqiang"},
    {"丽娜", "lina"}, {"文博", "wenbo"},   {"雨桐", "yutong"},  {"子涵", "zihan"},   {"海涛", "haitao"}};
constexpr SampleName kChineseFamily[] = {
    {"王", "wang"}, {"李", "li"},   {"张", "zhang"}, {"刘", "liu"},      {"陈", "chen"},
    {"杨", "yang"}, {"赵", "zhao"}, {"黄", "huang"}, {"欧阳", "ouyang"}, {"司马", "sima"}};
constexpr Texts kChineseDepartments = {"客户服务部", "研发部", "财务部",
                                       "人力资源部", "市场部", "质量管理部"};
constexpr Texts kChineseDuties = {"负责产品手册的更新，并解答各分公司的问题", "新文章发布之前的审核",
                                  "管理术语表和多语种翻译", "收集现场反馈并整理成知识条目"};

// Japanese
constexpr SampleName kJapaneseGiven[] = {
    {"陽菜", "haruna"}, {"健太", "kenta"},    {"美咲", "misaki"}, {"大輔", "daisuke"}, {"さくら", "sakura"},
    {"拓也", "takuya"}, {"ひろみ", "hiromi"}, {"翔太", "shota"},  {"直子", "naoko"},   {"エミリ", "emiri"}};
constexpr SampleName kJapaneseFamily[] = {
    {"佐藤", "sato"}, {"鈴木", "suzuki"},   {"高橋", "takahashi"}, {"田中", "tanaka"}, {"渡辺", "watanabe"},
    {"伊藤", "ito"},  {"山本", "yamamoto"}, {"小林", "kobayashi"}, {"加藤", "kato"},   {"斎藤", "saito"}};
constexpr Texts kJapaneseDepartments = {"カスタマーサポート", "開発部", "経理部", "人事部", "品質保証部"};
constexpr Texts kJapaneseDuties = {"製品マニュアルを更新し、支店からの質問に答える",
                                   "新しい記事を公開前に確認する", "用語集と翻訳を担当"};

// Korean
constexpr SampleName kKoreanGiven[] = {{"민준", "minjun"}, {"서연", "seoyeon"}, {"지훈", "jihun"},
                                       {"하은", "haeun"},  {"현우", "hyeonu"},  {"유진", "yujin"},
                                       {"도윤", "doyun"},  {"수빈", "subin"}};
constexpr SampleName kKoreanFamily[] = {{"김", "kim"},   {"이", "lee"},  {"박", "park"}, {"최", "choi"},
                                        {"정", "jeong"}, {"강", "kang"}, {"조", "cho"},  {"윤", "yun"}};
constexpr Texts kKoreanDepartments = {"고객지원팀", "개발팀", "재무팀", "인사팀"};
constexpr Texts kKoreanDuties = {"제품 설명서를 최신 상태로 유지하고 지점의 질문에 답변",
                                 "새 글을 게시하기 전에 검토"};

// Arabic
constexpr SampleName kArabicGiven[] = {
    {"أحمد", "ahmad"}, {"فاطمة", "fatima"}, {"خالد", "khalid"}, {"ليلى", "layla"}, {"محمد", "muhammad"},
    {"نور", "nur"},    {"سعاد", "suad"},    {"يوسف", "yusuf"},  {"هدى", "huda"},   {"عمر", "umar"}};
constexpr SampleName kArabicFamily[] = {
    {"الحسن", "alhasan"}, {"المصري", "almasri"}, {"النجار", "alnajjar"}, {"الخطيب", "alkhatib"},
    {"حداد", "haddad"},   {"منصور", "mansur"},   {"سليمان", "sulayman"}, {"الزهراني", "alzahrani"},
    {"قاسم", "qasim"},    {"شاهين", "shahin"}};
constexpr Texts kArabicDepartments = {"خدمة العملاء", "التطوير", "المالية", "الموارد البشرية", "التدريب"};
constexpr Texts kArabicDuties = {"يحدّث أدلة المنتجات ويجيب عن أسئلة الفروع",
                                 "مراجعة المقالات الجديدة قبل نشرها",
                                 "مسؤول عن المصطلحات والترجمة إلى الإنجليزية"};

// Hebrew
constexpr SampleName kHebrewGiven[] = {
    {"אברהם", "avraham"}, {"דנה", "dana"},   {"יעל", "yael"},   {"משה", "moshe"}, {"נועה", "noa"},
    {"עומר", "omer"},     {"רחל", "rachel"}, {"שירה", "shira"}, {"תמר", "tamar"}, {"גיל", "gil"}};
constexpr SampleName kHebrewFamily[] = {{"כהן", "cohen"},       {"לוי", "levi"},      {"מזרחי", "mizrahi"},
                                        {"פרץ", "peretz"},      {"ביטון", "biton"},   {"אברמוב", "abramov"},
                                        {"פרידמן", "friedman"}, {"שפירא", "shapira"}, {"גולן", "golan"},
                                        {"ברק", "barak"}};
constexpr Texts kHebrewDepartments = {"שירות לקוחות", "פיתוח", "כספים", "משאבי אנוש"};
constexpr Texts kHebrewDuties = {"מעדכן את מדריכי המוצר ועונה על שאלות הסניפים",
                                 "בודקת מאמרים חדשים לפני הפרסום"};

constexpr SampleLocale kLocales[] = {
    {kCyrillicGiven, kCyrillicFamily, kCyrillicDepartments, kCyrillicDuties, "+380 44", " ", false},
    {kGreekGiven, kGreekFamily, kGreekDepartments, kGreekDuties, "+30 21", " ", false},
    {kChineseGiven, kChineseFamily, kChineseDepartments, kChineseDuties, "+86 10", "", true},
    {kJapaneseGiven, kJapaneseFamily, kJapaneseDepartments, kJapaneseDuties, "+81 3", " ", true},
    {kKoreanGiven, kKoreanFamily, kKoreanDepartments, kKoreanDuties, "+82 2", "", true},
    {kArabicGiven, kArabicFamily, kArabicDepartments, kArabicDuties, "+20 2", " ", false},
    {kHebrewGiven, kHebrewFamily, kHebrewDepartments, kHebrewDuties, "+972 3", " ", false},
};

}  // namespace

std::span<const SampleLocale> OtherSampleLocales() {
  return kLocales;
}

}  // namespace mindloft
