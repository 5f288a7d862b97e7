#include "editors/domains/DomainDescriptionPage.h"

#include <wx/button.h>

#include <utility>

#include "backend/corvane/Corvane.h"
#include "backend/tessaline/Services.h"
#include "backend/tessaline/Text.h"
#include "controls/richtext/DocumentFiles.h"
#include "controls/richtext/TextControl.h"
#include "controls/styles/StyleFont.h"
#include "core/ErrorHandling.h"
#include "core/forms/Form.h"

namespace mindloft {
namespace {

constexpr const char* kClassName = "DomainDescriptionPage";

/// What the style says of letters. A colour that is meant for another background could not be read on paper.
wxRichTextAttr LookOf(ObjectId id) {
  const auto style = id == 0 ? nullptr : GetApplication()->Server()->Styles()->Item(Corvane::IdText(id));
  if (!style) return {};
  const auto format = style->Format();
  auto look = LettersOfStyle(format);
  if (!look) return {};
  wxColour colour;
  if (format.background.empty() && colour.Set(ToWx(format.colour))) look->SetTextColour(colour);
  return *look;
}

}  // namespace

DomainDescriptionPage::DomainDescriptionPage(FormDialog& form, std::function<void()> changed,
                                             std::function<std::string()> name)
    : form_(form), changed_(std::move(changed)) {
  TxtDesc = FindControl<TextControl>(form, "TxtDesc");
  cmdOpen = FindControl<wxButton>(form, "cmdOpen");
  TxtDesc->Change = [this] { Changed(); };
  const auto bind = [&](const char* button, std::function<void()> action) {
    FindControl<wxButton>(form, button)
        ->Bind(wxEVT_BUTTON, [button, action = std::move(action)](wxCommandEvent&) {
          Guarded(kClassName, button, action);
        });
  };
  bind("cmdOpen", [this] {
    if (OpenDocumentFile(*TxtDesc)) Changed();
  });
  bind("cmdSaveAs", [this, name = std::move(name)] { SaveDocumentFile(*TxtDesc, ToWx(name())); });
  bind("cmdPageSetup", [this] { TxtDesc->PageSetup(); });
  bind("cmdPreview", [this] { TxtDesc->PrintPreview(); });
  bind("cmdPrint", [this] { TxtDesc->Print(); });
}

void DomainDescriptionPage::Changed() {
  isChanged_ = true;
  changed_();
}

void DomainDescriptionPage::Display(const Corvane::KDomain& domain, ObjectId style) {
  const std::string& document = domain.Edited().document;
  TxtDesc->Editor().SetBaseLook(document.empty() ? LookOf(style) : wxRichTextAttr());
  const int problem = TxtDesc->Content().Load(document.empty() ? domain.Document().xml : document);
  isShown_ = true;
  isChanged_ = false;
  TxtDesc->UpdateBars();
  if (problem != 0) Tell(problem);
}

void DomainDescriptionPage::Follow(const Corvane::KDomain& domain, ObjectId style, bool isOther) {
  if (!isShown_) return;
  const bool takesStyle = !isChanged_ && domain.Edited().document.empty();
  if (isOther || takesStyle) Display(domain, style);
}

void DomainDescriptionPage::Tell(int message) {
  form_.CallAfter([this, message] {
    Guarded(kClassName, "Tell", [&] { GetMessenger().ShowMessage(message, {}, &form_); });
  });
}

void DomainDescriptionPage::Put(Corvane::KDomain& domain) const {
  if (isChanged_) domain.SetDocument(TxtDesc->Content().Save());
}

void DomainDescriptionPage::LoadInfo() {
  TxtDesc->LoadInfoOnControl();
}

void DomainDescriptionPage::SetButtonStatus(bool mayChange) {
  // The bars are shown anew with each setting, and this is called with each letter.
  if (TxtDesc->Locked() == mayChange) TxtDesc->SetLocked(!mayChange);
  cmdOpen->Enable(mayChange);
}

}  // namespace mindloft
