#pragma once

#include <wx/app.h>

class wxFrame;

namespace mindloft {

/// The developers' program that shows every control of the console. `--language CODE` shows them in that
/// language and its layout direction, the options of GalleryApp.cpp the pages of
/// controls that need much room. It neither reads nor writes the
/// user's settings.
class GalleryApp : public wxApp {
 public:
  GalleryApp();

  bool OnInit() override;
  int OnExit() override;
  void OnInitCmdLine(wxCmdLineParser& parser) override;
  bool OnCmdLineParsed(wxCmdLineParser& parser) override;
  wxLayoutDirection GetLayoutDirection() const override;

  bool OnExceptionInMainLoop() override;
  void OnUnhandledException() override;

 private:
  wxFrame* (*makePage_)();
};

}  // namespace mindloft
