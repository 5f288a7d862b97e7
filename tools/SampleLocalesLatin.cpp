#include "tools/SampleLocale.h"

namespace mindloft {
namespace {

using Texts = std::string_view[];

// English
constexpr SampleName kEnglishGiven[] = {
    {"Alice", "alice"},     {"Benjamin", "benjamin"}, {"Charlotte", "charlotte"}, {"Daniel", "daniel"},
    {"Eleanor", "eleanor"}, {"Frederick", "fred"},    {"Grace", "grace"},         {"Harriet", "harriet"},
    {"Isaac", "isaac"},     {"Julia", "julia"},       {"Kenneth", "ken"},         {"Lauren", "lauren"},
    {"Margaret", "maggie"}, {"Nathan", "nathan"},     {"Olivia", "olivia"},       {"Thomas", "tom"}};
constexpr SampleName kEnglishFamily[] = {
    {"Adams", "adams"},         {"Bennett", "bennett"},   {"Clarke", "clarke"},
    {"Dawson", "dawson"},       {"Edwards", "edwards"},   {"Foster", "foster"},
    {"Griffiths", "griffiths"}, {"Hughes", "hughes"},     {"Ingram", "ingram"},
    {"Johnson", "johnson"},     {"Kavanagh", "kavanagh"}, {"Lawrence", "lawrence"},
    {"MacDonald", "mcdonald"},  {"O'Connor", "oconnor"},  {"Smith-Jones", "smithjones"},
    {"Whitaker", "whitaker"}};
constexpr Texts kEnglishDepartments = {"Customer Support", "Engineering", "Finance",
                                       "Human Resources",  "Legal",       "Marketing",
                                       "Research",         "Training"};
constexpr Texts kEnglishDuties = {"Keeps the product manuals up to date and answers questions about them",
                                  "Reviews new articles before they are published",
                                  "Looks after the glossary and the translations into other languages",
                                  "Collects reports from the field and turns them into articles",
                                  "First contact for suppliers, on leave every other Friday"};

// German
constexpr SampleName kGermanGiven[] = {
    {"Jürgen", "juergen"},    {"Käthe", "kaethe"},  {"Björn", "bjoern"}, {"Sabine", "sabine"},
    {"Matthias", "matthias"}, {"Ursula", "ursula"}, {"Götz", "goetz"},   {"Franziska", "franziska"},
    {"Anke", "anke"},         {"Lukas", "lukas"},   {"Änne", "aenne"},   {"Wolfgang", "wolfgang"}};
constexpr SampleName kGermanFamily[] = {
    {"Müller", "mueller"},    {"Schäfer", "schaefer"},      {"Groß", "gross"},
    {"Weiß", "weiss"},        {"Krüger", "krueger"},        {"Hoffmann", "hoffmann"},
    {"von Böhm", "vonboehm"}, {"Lang-Jäger", "langjaeger"}, {"Schröder", "schroeder"},
    {"Vogt", "vogt"},         {"Zöllner", "zoellner"},      {"Brandt", "brandt"}};
constexpr Texts kGermanDepartments = {"Einkauf",  "Entwicklung", "Kundendienst",
                                      "Personal", "Qualität",    "Vertrieb"};
constexpr Texts kGermanDuties = {"Pflegt die Handbücher und beantwortet Rückfragen der Außenstellen",
                                 "Prüft neue Beiträge vor der Veröffentlichung",
                                 "Zuständig für Übersetzungen und das gemeinsame Wörterbuch",
                                 "Ansprechpartner für Schulungen, dienstags und donnerstags im Haus"};

// French
constexpr SampleName kFrenchGiven[] = {{"Chloé", "chloe"},     {"François", "francois"}, {"Gaëlle", "gaelle"},
                                       {"Hélène", "helene"},   {"Jérôme", "jerome"},     {"Loïc", "loic"},
                                       {"Noémie", "noemie"},   {"Rémi", "remi"},         {"Anaïs", "anais"},
                                       {"Étienne", "etienne"}, {"Mathilde", "mathilde"}, {"Zoé", "zoe"}};
constexpr SampleName kFrenchFamily[] = {
    {"Lefèvre", "lefevre"},    {"Gauthier", "gauthier"}, {"Béranger", "beranger"}, {"Château", "chateau"},
    {"D’Amboise", "damboise"}, {"Dupré", "dupre"},       {"Garçon", "garcon"},     {"Hébert", "hebert"},
    {"Lemaître", "lemaitre"},  {"Noël", "noel"},         {"Perret", "perret"},     {"Rousseau", "rousseau"}};
constexpr Texts kFrenchDepartments = {"Achats",    "Bureau d’études", "Comptabilité",
                                      "Formation", "Qualité",         "Service après-vente"};
constexpr Texts kFrenchDuties = {"Met à jour les notices techniques et répond aux questions des agences",
                                 "Relit les nouveaux articles avant leur publication",
                                 "Responsable du glossaire et des traductions vers l’anglais",
                                 "Anime les formations et recueille les retours du terrain"};

// Spanish and Portuguese
constexpr SampleName kIberianGiven[] = {
    {"Álvaro", "alvaro"}, {"Begoña", "begona"},       {"Inês", "ines"},
    {"Íñigo", "inigo"},   {"João", "joao"},           {"José María", "josemaria"},
    {"Lucía", "lucia"},   {"Núria", "nuria"},         {"Óscar", "oscar"},
    {"Raúl", "raul"},     {"Sebastião", "sebastiao"}, {"Ximena", "ximena"}};
constexpr SampleName kIberianFamily[] = {
    {"García", "garcia"},   {"Núñez", "nunez"},          {"Gonçalves", "goncalves"},
    {"Ibáñez", "ibanez"},   {"Magalhães", "magalhaes"},  {"Peña", "pena"},
    {"Quintão", "quintao"}, {"Sánchez Ruiz", "sanchez"}, {"Simões", "simoes"},
    {"Vázquez", "vazquez"}, {"Araújo", "araujo"},        {"Muñoz", "munoz"}};
constexpr Texts kIberianDepartments = {"Atención al cliente", "Compras",   "Formação",
                                       "Ingeniería",          "Logística", "Relações públicas"};
constexpr Texts kIberianDuties = {"Mantiene al día los manuales y responde a las consultas de las sucursales",
                                  "Revisa los artículos nuevos antes de su publicación",
                                  "Responsável pelo glossário e pelas traduções",
                                  "Recoge las incidencias y las convierte en artículos"};

// Polish and Czech
constexpr SampleName kSlavicGiven[] = {
    {"Agnieszka", "agnieszka"}, {"Bożena", "bozena"},         {"Čeněk", "cenek"},   {"Jiří", "jiri"},
    {"Łukasz", "lukasz"},       {"Małgorzata", "malgorzata"}, {"Ondřej", "ondrej"}, {"Paweł", "pawel"},
    {"Růžena", "ruzena"},       {"Stanisław", "stanislaw"},   {"Šárka", "sarka"},   {"Wojciech", "wojciech"}};
constexpr SampleName kSlavicFamily[] = {
    {"Błaszczyk", "blaszczyk"}, {"Černý", "cerny"},   {"Dąbrowski", "dabrowski"}, {"Dvořák", "dvorak"},
    {"Jabłońska", "jablonska"}, {"Kovář", "kovar"},   {"Nowak", "nowak"},         {"Říha", "riha"},
    {"Świątek", "swiatek"},     {"Veselý", "vesely"}, {"Woźniak", "wozniak"},     {"Żak", "zak"}};
constexpr Texts kSlavicDepartments = {"Dział sprzedaży", "Księgowość", "Nákup",
                                      "Obsługa klienta", "Školení",    "Vývoj"};
constexpr Texts kSlavicDuties = {
    "Aktualizuje instrukcje i odpowiada na pytania oddziałów", "Kontroluje nové články před zveřejněním",
    "Odpowiada za słownik i tłumaczenia na inne języki", "Vede školení nových zaměstnanců v Brně a Ostravě"};

// Turkish
constexpr SampleName kTurkishGiven[] = {
    {"Ayşe", "ayse"}, {"Çağla", "cagla"},   {"Emre", "emre"},   {"Gülşen", "gulsen"}, {"İbrahim", "ibrahim"},
    {"Işıl", "isil"}, {"Mehmet", "mehmet"}, {"Özgür", "ozgur"}, {"Şebnem", "sebnem"}, {"Uğur", "ugur"}};
constexpr SampleName kTurkishFamily[] = {{"Yılmaz", "yilmaz"}, {"Çelik", "celik"}, {"Öztürk", "ozturk"},
                                         {"Şahin", "sahin"},   {"Doğan", "dogan"}, {"Kılıç", "kilic"},
                                         {"Aydın", "aydin"},   {"Güneş", "gunes"}, {"Karataş", "karatas"},
                                         {"İnan", "inan"}};
constexpr Texts kTurkishDepartments = {"Eğitim", "İnsan Kaynakları", "Müşteri Hizmetleri", "Satın Alma"};
constexpr Texts kTurkishDuties = {"Ürün kılavuzlarını günceller ve şubelerin sorularını yanıtlar",
                                  "Yeni makaleleri yayımlanmadan önce inceler",
                                  "Sözlükten ve çevirilerden sorumludur"};

// Vietnamese
constexpr SampleName kVietnameseGiven[] = {{"Bảo Châu", "baochau"},     {"Đức Anh", "ducanh"},
                                           {"Hồng Nhung", "hongnhung"}, {"Minh Quân", "minhquan"},
                                           {"Ngọc Ánh", "ngocanh"},     {"Quốc Việt", "quocviet"},
                                           {"Thị Hương", "thihuong"},   {"Xuân Trường", "xuantruong"}};
constexpr SampleName kVietnameseFamily[] = {{"Nguyễn", "nguyen"}, {"Trần", "tran"},   {"Lê", "le"},
                                            {"Phạm", "pham"},     {"Hoàng", "hoang"}, {"Đặng", "dang"},
                                            {"Bùi", "bui"},       {"Võ", "vo"}};
constexpr Texts kVietnameseDepartments = {"Chăm sóc khách hàng", "Kế toán", "Kỹ thuật", "Nhân sự"};
constexpr Texts kVietnameseDuties = {"Cập nhật tài liệu hướng dẫn và trả lời câu hỏi của các chi nhánh",
                                     "Kiểm tra bài viết mới trước khi đăng"};

// The first stands three times: many installations are mostly English.
constexpr SampleLocale kEnglish = {
    kEnglishGiven, kEnglishFamily, kEnglishDepartments, kEnglishDuties, "+44 20", " ", false};
constexpr SampleLocale kLocales[] = {
    kEnglish,
    kEnglish,
    kEnglish,
    {kGermanGiven, kGermanFamily, kGermanDepartments, kGermanDuties, "+49 30", " ", false},
    {kFrenchGiven, kFrenchFamily, kFrenchDepartments, kFrenchDuties, "+33 1", " ", false},
    {kIberianGiven, kIberianFamily, kIberianDepartments, kIberianDuties, "+34 91", " ", false},
    {kSlavicGiven, kSlavicFamily, kSlavicDepartments, kSlavicDuties, "+48 22", " ", false},
    {kTurkishGiven, kTurkishFamily, kTurkishDepartments, kTurkishDuties, "+90 212", " ", false},
    {kVietnameseGiven, kVietnameseFamily, kVietnameseDepartments, kVietnameseDuties, "+84 24", " ", true},
};

}  // namespace

std::span<const SampleLocale> LatinSampleLocales() {
  return kLocales;
}

}  // namespace mindloft
