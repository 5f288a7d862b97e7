#include "core/forms/FormResource.h"

#include <wx/mstream.h>
#include <wx/xml/xml.h>
#include <wx/xrc/xh_bmp.h>
#include <wx/xrc/xh_bmpbt.h>
#include <wx/xrc/xh_bttn.h>
#include <wx/xrc/xh_chckb.h>
#include <wx/xrc/xh_chckl.h>
#include <wx/xrc/xh_choic.h>
#include <wx/xrc/xh_combo.h>
#include <wx/xrc/xh_datectrl.h>
#include <wx/xrc/xh_dlg.h>
#include <wx/xrc/xh_frame.h>
#include <wx/xrc/xh_gauge.h>
#include <wx/xrc/xh_listb.h>
#include <wx/xrc/xh_listc.h>
#include <wx/xrc/xh_notbk.h>
#include <wx/xrc/xh_panel.h>
#include <wx/xrc/xh_radbt.h>
#include <wx/xrc/xh_scwin.h>
#include <wx/xrc/xh_sizer.h>
#include <wx/xrc/xh_slidr.h>
#include <wx/xrc/xh_spin.h>
#include <wx/xrc/xh_split.h>
#include <wx/xrc/xh_srchctrl.h>
#include <wx/xrc/xh_statbar.h>
#include <wx/xrc/xh_stbmp.h>
#include <wx/xrc/xh_stbox.h>
#include <wx/xrc/xh_stlin.h>
#include <wx/xrc/xh_sttxt.h>
#include <wx/xrc/xh_text.h>
#include <wx/xrc/xh_tglbtn.h>
#include <wx/xrc/xh_tree.h>
#include <wx/xrc/xh_unkwn.h>

#include <memory>
#include <utility>

#include "backend/errors/Error.h"
#include "backend/tessaline/Text.h"
#include "platform/EmbeddedFile.h"
#include "platform/ui/Toolkit.h"

namespace mindloft {
namespace {

template <typename... Handlers>
void AddHandlers(wxXmlResource& resource) {
  (resource.AddHandler(new Handlers), ...);
}

}  // namespace

FormResource& FormResource::Get() {
  auto* resource = dynamic_cast<FormResource*>(wxXmlResource::Get());
  if (!resource) {
    resource = new FormResource;
    delete wxXmlResource::Set(resource);
  }
  return *resource;
}

FormResource::FormResource() : wxXmlResource(wxXRC_NO_RELOADING) {
  platform::MendToolkit();
  // Not all handlers of the toolkit: each costs start-up time, and some pull whole libraries in.
  AddHandlers<wxDialogXmlHandler, wxFrameXmlHandler, wxPanelXmlHandler, wxScrolledWindowXmlHandler,
              wxSplitterWindowXmlHandler, wxNotebookXmlHandler>(*this);
  AddHandlers<wxSizerXmlHandler, wxStdDialogButtonSizerXmlHandler, wxStaticBoxXmlHandler,
              wxStaticLineXmlHandler, wxStaticTextXmlHandler, wxStaticBitmapXmlHandler, wxBitmapXmlHandler>(
      *this);
  AddHandlers<wxButtonXmlHandler, wxBitmapButtonXmlHandler, wxToggleButtonXmlHandler, wxCheckBoxXmlHandler,
              wxRadioButtonXmlHandler, wxTextCtrlXmlHandler, wxSearchCtrlXmlHandler, wxChoiceXmlHandler,
              wxComboBoxXmlHandler>(*this);
  AddHandlers<wxListBoxXmlHandler, wxCheckListBoxXmlHandler, wxListCtrlXmlHandler, wxTreeCtrlXmlHandler,
              wxSpinCtrlXmlHandler, wxSliderXmlHandler, wxGaugeXmlHandler, wxDateCtrlXmlHandler,
              wxStatusBarXmlHandler, wxUnknownWidgetXmlHandler>(*this);
}

void FormResource::Load(wxObject* instance, wxWindow* parent, const wxString& name,
                        const wxString& className) {
  // A control of a form may load a form of its own.
  auto outer = std::exchange(errors_, {});
  LoadFile(name);
  bool created = LoadObject(instance, parent, name, className);
  const auto errors = std::exchange(errors_, std::move(outer));
  if (created && errors.empty()) return;
  wxString description = "form " + name;
  for (const auto& error : errors) description += "; " + error;
  throw Error(ErrorNumber::Unexpected, ToUtf8(description));
}

void FormResource::LoadFile(const wxString& name) {
  if (loaded_.count(name)) return;
  wxString fileName = "forms/" + name + ".xrc";
  auto content = platform::EmbeddedFile(ToUtf8(fileName));
  if (content.empty()) throw Error(ErrorNumber::Unexpected, "no form " + ToUtf8(fileName));
  wxMemoryInputStream stream(content.data(), content.size());
  auto document = std::make_unique<wxXmlDocument>();
  if (!document->Load(stream) || !LoadDocument(document.release(), fileName)) {
    throw Error(ErrorNumber::Unexpected, "damaged form " + ToUtf8(fileName));
  }
  loaded_.insert(name);
}

void FormResource::DoReportError(const wxString& file, const wxXmlNode* position, const wxString& message) {
  int line = position ? position->GetLineNumber() : 0;
  errors_.push_back(wxString::Format("%s:%d: ", file, line) + message);
}

}  // namespace mindloft
