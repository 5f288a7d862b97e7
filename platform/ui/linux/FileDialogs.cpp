#include "platform/ui/FileDialogs.h"

#include <wx/dirdlg.h>
#include <wx/filedlg.h>
#include <wx/filename.h>
#include <wx/utils.h>

namespace mindloft::platform {

wxString ShowFileDialog(const FileDialogRequest& request) {
  if (request.kind == FileDialogRequest::Kind::Folder) {
    wxDirDialog dialog(request.owner, wxString(), wxString(), wxDD_DEFAULT_STYLE);
    return dialog.ShowModal() == wxID_OK ? dialog.GetPath() : wxString();
  }
  long style = request.kind == FileDialogRequest::Kind::Save ? wxFD_SAVE | wxFD_OVERWRITE_PROMPT
                                                             : wxFD_OPEN | wxFD_FILE_MUST_EXIST;
  wxFileName name(request.defaultName);
  // The toolkit takes pairs only; what stands alone at the end is dropped, as Windows does.
  auto filter = request.filter;
  if (filter.Freq('|') % 2 == 0) filter = filter.BeforeLast('|');
  wxFileDialog dialog(request.owner, wxString(), name.GetPath(), name.GetFullName(),
                      filter.empty() ? wxString("*|*") : filter, style);
  return dialog.ShowModal() == wxID_OK ? dialog.GetPath() : wxString();
}

}  // namespace mindloft::platform
