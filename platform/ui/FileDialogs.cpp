#include "platform/ui/FileDialogs.h"

namespace mindloft::platform {
namespace {

std::function<wxString(const FileDialogRequest&)> fakeDialogs;

wxString Ask(const FileDialogRequest& request) {
  return fakeDialogs ? fakeDialogs(request) : ShowFileDialog(request);
}

}  // namespace

wxString BrowseFolder(wxWindow* owner) {
  return Ask({FileDialogRequest::Kind::Folder, owner, {}, {}});
}

wxString SaveFileDialog(wxWindow* owner, const wxString& filter, const wxString& defaultName) {
  return Ask({FileDialogRequest::Kind::Save, owner, filter, defaultName});
}

wxString OpenFileDialog(wxWindow* owner, const wxString& filter, const wxString& defaultName) {
  return Ask({FileDialogRequest::Kind::Open, owner, filter, defaultName});
}

FakeFileDialogs::FakeFileDialogs(std::function<wxString(const FileDialogRequest&)> answer) {
  fakeDialogs = std::move(answer);
}
FakeFileDialogs::~FakeFileDialogs() {
  fakeDialogs = nullptr;
}

}  // namespace mindloft::platform
