#pragma once

#include <wx/app.h>

namespace mindloft {

/// The developers' program that shows every control of the console. `--language CODE` shows them in that
/// language and its layout direction, `--rich-text` the rich-text controls. It neither reads nor writes the
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
  bool showsRichText_ = false;
};

}  // namespace mindloft
