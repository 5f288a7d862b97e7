#include "editors/user/CopySecret.h"

#include <wx/clipbrd.h>
#include <wx/dataobj.h>

#include <memory>

namespace mindloft {
namespace {

/// What Windows' clipboard history and the one of many Linux desktops look for.
constexpr const char* kHistoryMarks[][2] = {{"ExcludeClipboardContentFromMonitorProcessing", "1"},
                                            {"x-kde-passwordManagerHint", "secret"}};

}  // namespace

bool CopySecret(const wxString& secret) {
  auto data = std::make_unique<wxDataObjectComposite>();
  data->Add(new wxTextDataObject(secret), true);
  for (const auto& [format, value] : kHistoryMarks) {
    auto* mark = new wxCustomDataObject(wxDataFormat(format));
    mark->SetData(wxStrlen(value), value);
    data->Add(mark);
  }
  wxClipboardLocker clipboard;
  return !!clipboard && wxTheClipboard->SetData(data.release());
}

}  // namespace mindloft
