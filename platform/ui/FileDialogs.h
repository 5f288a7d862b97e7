#pragma once

#include <wx/string.h>

#include <functional>

class wxWindow;

namespace mindloft::platform {

// The system's dialogs for folders and files. Each returns the chosen path, or an empty text when cancelled.
// The owner may be null.

/// The folder browser.
wxString BrowseFolder(wxWindow* owner);

/// `filter` holds pairs of display name and pattern, all separated by "|" ("Text|*.txt|All|*.*"). Asks before
/// a file would be overwritten.
wxString SaveFileDialog(wxWindow* owner, const wxString& filter, const wxString& defaultName = {});

/// Offers files that exist only.
wxString OpenFileDialog(wxWindow* owner, const wxString& filter, const wxString& defaultName = {});

struct FileDialogRequest {
  enum class Kind { Folder, Save, Open };
  Kind kind;
  wxWindow* owner;
  wxString filter;
  wxString defaultName;
};

/// Answers the dialogs in a test, until it goes.
class FakeFileDialogs {
 public:
  explicit FakeFileDialogs(std::function<wxString(const FileDialogRequest&)> answer);
  ~FakeFileDialogs();
  FakeFileDialogs(const FakeFileDialogs&) = delete;
  FakeFileDialogs& operator=(const FakeFileDialogs&) = delete;
};

/// The system's own dialog.
wxString ShowFileDialog(const FileDialogRequest& request);

}  // namespace mindloft::platform
