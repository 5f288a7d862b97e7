#pragma once

#include <memory>

#include "backend/directory/Records.h"
#include "editors/PropertySheet.h"

class wxButton;
class wxCheckBox;

namespace mindloft {

class DomainCopyPage;
class DomainDescriptionPage;
class MemberList;
class UseTextBox;
class ctExplorer;
namespace Corvane {
class KDomain;
}

/// The property sheet of one knowledge domain: name, style, whether it is disabled, its formatted
/// description, its groups and its users. A new domain can take over what an existing one has.
class frmDomainInfo : public PropertySheet {
 public:
  explicit frmDomainInfo(wxWindow* parent);
  ~frmDomainInfo() override;

  /// Shows the sheet modally for a stored or a new domain; HasSaved tells whether anything was stored.
  void OpenWindow(std::shared_ptr<Corvane::KDomain> domain);
  void LoadInfoOnForm() override;

 protected:
  void SetButtonStatus() override;
  bool HasChanges() const override;
  void cmdApply_Click() override;
  void CmdOK_Click() override;
  void CmdCancel_Click() override;
  void FillPage(int page) override;
  bool MergeConflict(const Error& conflict) override;
  void ShowCaption() override;

 private:
  void BindHandlers();
  /// A new domain has the page for copying, a stored one those for groups and users.
  void ArrangePages();
  void ReadRights();
  void GetInfo();
  /// Reads the name of the style that is chosen; none when it is gone meanwhile.
  void ShowStyle();
  void cmdStyle_Click();
  void DisplayGroups();
  void ctGroup_lvItemDblClick();
  void InfoChanged();
  bool RefuseBlankName();
  void PutInfo();
  /// False: the user has cancelled a long creation, and nothing is stored.
  bool SaveInfo();

  std::shared_ptr<Corvane::KDomain> domain_;
  std::unique_ptr<DomainDescriptionPage> description_;
  std::unique_ptr<DomainCopyPage> copy_;
  std::unique_ptr<MemberList> users_;
  ObjectId style_ = 0;  ///< the chosen one; 0: none
  bool infoChanged_ = false;
  bool mayChange_ = false;       ///< what the first page shows
  bool mayChangeUsers_ = false;  ///< who has access

  wxBookCtrlBase* sstDomain = nullptr;
  wxWindow* pnlDesc = nullptr;
  wxWindow* pnlCopy = nullptr;
  wxWindow* pnlGroups = nullptr;
  wxWindow* pnlUsers = nullptr;
  UseTextBox* txtName = nullptr;
  UseTextBox* txtStyle = nullptr;
  wxButton* cmdStyle = nullptr;
  wxCheckBox* chkDisabled = nullptr;
  ctExplorer* ctGroup = nullptr;
};

}  // namespace mindloft
