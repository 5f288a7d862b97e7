#include "backend/tessaline/Messenger.h"

#include <wx/msgdlg.h>

#include "backend/tessaline/Services.h"

namespace mindloft::Tessaline {
namespace {

// Texts of the message boxes' own buttons: those of the toolkit would follow the system's language.
constexpr int textYes = 61441;
constexpr int textNo = 61442;
constexpr int textOK = 61443;

long IconStyle(MessageKind kind) {
  switch (kind) {
    case MessageKind::Critical:
      return wxICON_ERROR;
    case MessageKind::Question:
      return wxICON_QUESTION;
    case MessageKind::Exclamation:
      return wxICON_WARNING;
    case MessageKind::Information:
      return wxICON_INFORMATION;
  }
  return wxICON_INFORMATION;
}

long ButtonStyle(Buttons buttons) {
  switch (buttons) {
    case Buttons::OK:
      return wxOK;
    case Buttons::YesNo:
      return wxYES_NO;
    case Buttons::YesNoDefaultNo:
      return wxYES_NO | wxNO_DEFAULT;
  }
  return wxOK;
}

}  // namespace

void Messenger::ShowMessage(int number, const std::vector<wxString>& parameters, wxWindow* parent) const {
  Ask(number, kInformationTitle, Buttons::OK, MessageKind::Exclamation, parameters, parent);
}

bool Messenger::Ask(int textNumber, int titleNumber, Buttons buttons, MessageKind kind,
                    const std::vector<wxString>& parameters, wxWindow* parent) const {
  const Resource& resource = GetResource();
  wxMessageDialog dialog(parent, resource.GetFormatString(textNumber, parameters),
                         resource.GetString(titleNumber), ButtonStyle(buttons) | IconStyle(kind) | wxCENTRE);
  dialog.SetName(wxString::Format("message %d", textNumber));
  if (buttons == Buttons::OK) {
    dialog.SetOKLabel(resource.GetString(textOK));
  } else {
    dialog.SetYesNoLabels(resource.GetString(textYes), resource.GetString(textNo));
  }
  int answer = dialog.ShowModal();
  return answer == wxID_YES || answer == wxID_OK;
}

}  // namespace mindloft::Tessaline
