#include "gallery/GalleryApp.h"

#include <wx/cmdline.h>
#include <wx/image.h>

#include "backend/tessaline/Services.h"
#include "core/ErrorHandling.h"
#include "gallery/PageSetupPart.h"
#include "gallery/RichTextPart.h"
#include "gallery/StylesPart.h"
#include "gallery/frmControls.h"
#include "gallery/frmOnePart.h"
#include "platform/RegistryStore.h"

namespace mindloft {
namespace {

template <typename Part>
wxFrame* MakePage() {
  return PageOf<Part>();
}

struct Page {
  const char* option;
  const char* description;
  wxFrame* (*make)();
};

constexpr Page kPages[] = {
    {"rich-text", "show the rich-text controls", MakePage<RichTextPart>},
    {"page-setup", "show the page setup's panel", MakePage<PageSetupPart>},
    {"styles", "show the preview of styles", MakePage<StylesPart>},
};

wxFrame* MakeFirstPage() {
  return new frmControls;
}

}  // namespace

GalleryApp::GalleryApp() : makePage_(MakeFirstPage) {
  SetAppName("mindloft-controls");
  SetAppDisplayName("Mindloft controls");
  ServiceOverrides overrides;
  overrides.registry = platform::MemoryRegistry();
  ResetServices(std::move(overrides));
}

bool GalleryApp::OnInit() try {
  if (!wxApp::OnInit()) return false;
  wxImage::AddHandler(new wxPNGHandler);
  makePage_()->Show();
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
  for (const Page& page : kPages) parser.AddLongSwitch(page.option, page.description);
}

bool GalleryApp::OnCmdLineParsed(wxCmdLineParser& parser) {
  for (const Page& page : kPages)
    if (parser.Found(page.option)) makePage_ = page.make;
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
