#include "gallery/GalleryApp.h"

#include <wx/cmdline.h>
#include <wx/image.h>

#include "backend/tessaline/Services.h"
#include "core/ErrorHandling.h"
#include "gallery/frmControls.h"
#include "gallery/frmRichTexts.h"
#include "platform/RegistryStore.h"

namespace mindloft {

GalleryApp::GalleryApp() {
  SetAppName("mindloft-controls");
  SetAppDisplayName("Mindloft controls");
  ServiceOverrides overrides;
  overrides.registry = platform::MemoryRegistry();
  ResetServices(std::move(overrides));
}

bool GalleryApp::OnInit() try {
  if (!wxApp::OnInit()) return false;
  wxImage::AddHandler(new wxPNGHandler);
  if (showsRichText_)
    (new frmRichTexts)->Show();
  else
    (new frmControls)->Show();
  return true;
} catch (...) {
  ShowError("GalleryApp", "OnInit");
  return false;
}

int GalleryApp::OnExit() {
  Guarded("GalleryApp", "OnExit", [] { ResetServices(); });
  return wxApp::OnExit();
}

void GalleryApp::OnInitCmdLine(wxCmdLineParser& parser) {
  wxApp::OnInitCmdLine(parser);
  parser.AddLongOption("language", "the code of the language to show: 1033, 2052, 1031, 1025, 1041 or 1055",
                       wxCMD_LINE_VAL_NUMBER);
  parser.AddLongSwitch("rich-text", "show the rich-text controls");
}

bool GalleryApp::OnCmdLineParsed(wxCmdLineParser& parser) {
  showsRichText_ = parser.Found("rich-text");
  long code = 0;
  if (parser.Found("language", &code) && !GetResource().SwitchLanguage(static_cast<int>(code))) {
    wxLogError("There is no language %ld.", code);
    return false;
  }
  return wxApp::OnCmdLineParsed(parser);
}

wxLayoutDirection GalleryApp::GetLayoutDirection() const {
  return GetResource().IsRightToLeft() ? wxLayout_RightToLeft : wxLayout_LeftToRight;
}

bool GalleryApp::OnExceptionInMainLoop() {
  ShowError("GalleryApp", "OnExceptionInMainLoop");
  return true;
}

void GalleryApp::OnUnhandledException() {
  ShowError("GalleryApp", "OnUnhandledException");
}

}  // namespace mindloft
