#include "tools/SampleDomains.h"

#include <iterator>
#include <string_view>

#include "backend/directory/Privileges.h"

namespace mindloft {
namespace {

struct Domain {
  std::string_view name, description;
};

constexpr Domain kDomains[] = {
    {"Product Knowledge", "Manuals, data sheets and known problems of all products in service"},
    {"Customer Support", "Answers that the help desk has found, by product and symptom"},
    {"Qualitätssicherung", "Prüfvorschriften, Messberichte und Abweichungen aller Werke"},
    {"Réglementation", "Normes, directives et déclarations de conformité par pays"},
    {"Формування кадрів", "Матеріали для навчання нових співробітників"},
    {"产品知识库", "产品手册、技术参数以及常见问题解答"},
    {"社内規程", "就業規則、経費精算、情報セキュリティの手引き"},
    {"قاعدة معرفة المبيعات", "عروض الأسعار والعقود النموذجية وملاحظات العملاء"},
    {"Γνώσεις Συντήρησης", "Οδηγίες συντήρησης και ανταλλακτικά ανά εγκατάσταση"},
    {"מאגר הדרכה", "מצגות, תרגילים ומבחנים לעובדים חדשים"},
    {"Research Notes", "Experiments, measurements and their evaluation; not for publication"},
    {"Legal and Contracts", "Contracts, licences and the correspondence about them"},
    {"Obsługa dostawców", "Warunki dostaw, oceny i dane kontaktowe dostawców"},
    {"Engineering Standards", "Drawing rules, tolerances and preferred parts"},
    {"Seguridad laboral", "Normas de seguridad, simulacros e informes de accidentes"},
    {"Marketing Library", "Texts, pictures and campaigns, with the rights to use them"},
};

struct Group {
  std::string_view name, description;
  std::uint32_t privileges;
};

constexpr std::uint32_t kWrite = ReadDocuments | WriteDocuments;
constexpr Group kGroups[] = {
    {"Readers", "May read everything in this domain", ReadDocuments},
    {"Editors", "Write and change articles", kWrite},
    {"Reviewers", "Approve articles before they are published", kWrite},
    {"Translators", "Translate published articles", kWrite},
    {"Coordinators", "Give colleagues access and keep the groups in order",
     kWrite | ManageDomainUsers | ManageDomainGroups},
    {"Guests", "Partners and suppliers with limited access", ReadDocuments},
    {"Auditors", "Look at everything and change nothing", ReadDocuments},
    {"Trainees", "New colleagues in their first year", ReadDocuments},
    {"Archivists", "Take old articles out of service", kWrite},
    {"Domain managers", "Look after the domain's own properties", kWrite | ChangeDomain},
};

/// Numbers the names from the second round through a table on.
std::string RoundName(std::string_view name, std::int64_t round) {
  std::string text(name);
  if (round > 0) text.append(" ").append(std::to_string(round + 1));
  return text;
}

}  // namespace

DomainRecord SampleDomain(std::int64_t number) {
  constexpr std::int64_t kCount = std::size(kDomains);
  const auto& domain = kDomains[number % kCount];
  DomainRecord record;
  record.name = RoundName(domain.name, number / kCount);
  record.description = domain.description;
  // The eleventh of each dozen, so that both kinds are to be seen.
  record.disabled = number % 12 == 10;
  return record;
}

GroupRecord SampleGroup(ObjectId domain, std::int64_t number) {
  constexpr std::int64_t kCount = std::size(kGroups);
  const auto& group = kGroups[number % kCount];
  GroupRecord record;
  record.domain = domain;
  record.name = RoundName(group.name, number / kCount);
  record.description = group.description;
  record.domainPrivileges = group.privileges;
  return record;
}

}  // namespace mindloft
