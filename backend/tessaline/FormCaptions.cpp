#include <wx/bookctrl.h>
#include <wx/radiobox.h>
#include <wx/srchctrl.h>
#include <wx/textctrl.h>
#include <wx/toplevel.h>
#include <wx/window.h>

#include "backend/tessaline/Resource.h"

namespace mindloft::Tessaline {
namespace {

/// Puts a caption where the window shows it. What a text box holds is the user's: there it is the hint.
void SetCaption(wxWindow& window, const wxString& text) {
  if (auto* search = dynamic_cast<wxSearchCtrl*>(&window)) {
    search->SetDescriptiveText(text);
  } else if (auto* entry = dynamic_cast<wxTextEntry*>(&window)) {
    entry->SetHint(text);
  } else {
    window.SetLabel(text);
  }
  // A page of a notebook has its caption on its tab.
  if (auto* book = dynamic_cast<wxBookCtrlBase*>(window.GetParent())) {
    int page = book->FindPage(&window);
    if (page != wxNOT_FOUND) book->SetPageText(static_cast<std::size_t>(page), text);
  }
}

void LoadCaptions(const Resource& resource, const wxString& form, wxWindow& parent);

void LoadCaption(const Resource& resource, const wxString& form, wxWindow& window) {
  auto caption = resource.CaptionOf(form, window.GetName());
  if (caption && !caption->text.empty()) SetCaption(window, caption->text);
  if (caption && !caption->tip.empty()) window.SetToolTip(caption->tip);
  LoadCaptions(resource, form, window);
}

void LoadCaptions(const Resource& resource, const wxString& form, wxWindow& parent) {
  for (wxWindow* window : parent.GetChildren()) {
    // A form of its own has captions of its own.
    if (!window->IsTopLevel()) LoadCaption(resource, form, *window);
  }
}

}  // namespace

void Resource::LoadInfoOnForm(wxWindow& form) const {
  const wxString name = form.GetName();
  auto title = language_->Title(name);
  if (!title) title = English().Title(name);
  auto* topLevel = dynamic_cast<wxTopLevelWindow*>(&form);
  if (topLevel && title) topLevel->SetTitle(*title);
  LoadCaptions(*this, name, form);
}

void Resource::LoadInfoOnControl(wxWindow& control) const {
  const wxWindow* form = wxGetTopLevelParent(&control);
  if (form) LoadCaption(*this, form->GetName(), control);
}

}  // namespace mindloft::Tessaline
