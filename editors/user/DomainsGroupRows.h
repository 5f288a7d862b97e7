#pragma once

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "backend/corvane/Corvane.h"
#include "controls/explorer/ExplorerRows.h"
#include "editors/NameRules.h"

namespace mindloft {

/// The groups of several knowledge domains: group, domain, description. They stand domain by domain, in each
/// by name; nothing of them is kept here but how many each domain has.
class DomainsGroupRows : public ExplorerRows {
 public:
  explicit DomainsGroupRows(std::shared_ptr<Corvane::KDomains> domains);

  /// Lists the groups of these domains from now on.
  void SetDomains(std::vector<DomainRecord> domains);
  /// The domain of a group that has been listed; 0 for another one.
  ObjectId DomainOf(ObjectId group) const;

  std::int64_t Count() override;
  std::int64_t TotalCount() override;
  std::vector<ExplorerRow> Page(std::int64_t first, std::int64_t count) override;
  bool CanSort(int column) const override { return column == kDomainColumn; }
  void Sort(int column, bool descending) override;
  bool CanFilter() const override { return true; }
  void Filter(const wxString& text) override;
  /// Of the domains' names: they are the order of the list.
  std::int64_t FindPrefix(const wxString& prefix, std::int64_t from) override;
  std::int64_t PositionOf(const wxString& key) override;

 private:
  static constexpr int kDomainColumn = 1;

  struct Part {
    DomainRecord domain;
    std::string key;  ///< of its name, for ordering and finding
    Corvane::GroupView groups;
    std::int64_t count = 0;
  };

  void Arrange();
  static wxString FieldsOf(const GroupRecord& group, const DomainRecord& domain);

  std::shared_ptr<Corvane::KDomains> domains_;
  std::vector<Part> parts_;
  NameRules rules_;
  std::unordered_map<ObjectId, ObjectId> listed_;  ///< domain by group
  bool descending_ = false;
  bool counted_ = false;
  std::string filter_;
};

}  // namespace mindloft
