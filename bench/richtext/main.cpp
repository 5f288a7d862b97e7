// Measures how fast the rich-text editor is in a document of a thousand pages: opening and storing it, and
// from a key to the last pixel that it paints, at the document's beginning, in its middle and at its end.
//
//   richtext-bench [PAGES]

#include <wx/app.h>
#include <wx/frame.h>
#include <wx/sizer.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "backend/tessaline/Services.h"
#include "bench/console/PaintClock.h"
#include "bench/editors/Figures.h"
#include "controls/richtext/TXControl.h"
#include "platform/RegistryStore.h"
#include "platform/ui/Toolkit.h"

namespace mindloft::bench {
namespace {

constexpr int kPages = 1000;
constexpr int kParagraphsOfPage = 8;
constexpr int kKeys = 21;
/// What people take for at once.
constexpr double kAtOnce = 100;

std::string Document(int pages) {
  std::string paragraph;
  for (int word = 0; word < 60; ++word) paragraph += "word" + std::to_string(word) + ' ';
  std::string document = "<richtext><paragraphlayout>";
  for (int i = 0; i < pages * kParagraphsOfPage; ++i)
    document += "<paragraph><text fontweight=\"700\">" + std::to_string(i) + ". </text><text>" + paragraph +
                "</text></paragraph>";
  return document + "</paragraphlayout></richtext>";
}

class RichTextBench : public wxApp {
 public:
  bool OnInit() override {
    ServiceOverrides overrides;
    overrides.registry = platform::MemoryRegistry();
    ResetServices(std::move(overrides));
    if (argc > 1) pages_ = std::max(1, std::atoi(argv[1].utf8_str()));
    platform::MendToolkit();
    StopAnimations();
    frame_ = new wxFrame(nullptr, wxID_ANY, "bench", wxDefaultPosition, wxSize(1000, 700));
    text_ = new TXControl(frame_);
    frame_->Show();
    CallAfter([this] {
      Run();
      ExitMainLoop();
    });
    return true;
  }
  int OnRun() override {
    wxApp::OnRun();
    ResetServices();
    return figures_.AllHold() ? 0 : 1;
  }

 private:
  void Type(int key) const {
    wxKeyEvent event(wxEVT_CHAR);
    event.m_keyCode = key;
    event.m_uniChar = static_cast<wxChar>(key);
    text_->Editor().HandleWindowEvent(event);
  }

  void Run() {
    PaintClock clock(*frame_);
    clock.Settle();
    const std::string document = Document(pages_);
    std::printf("%d pages, %zu bytes\n", pages_, document.size());
    figures_.Line("open", clock.Measure([&] { text_->Content().Load(document); }), 5 * pages_);
    const std::pair<const char*, double> places[] = {
        {"key at the beginning", 0}, {"key in the middle", 0.5}, {"key at the end", 1}};
    for (const auto& [what, part] : places) {
      RichEditor& editor = text_->Editor();
      editor.SetInsertionPoint(static_cast<long>(static_cast<double>(editor.EndPlace()) * part));
      editor.ShowPosition(editor.GetInsertionPoint());
      clock.Settle();
      std::vector<double> times;
      for (int i = 0; i < kKeys; ++i) times.push_back(clock.Measure([&] { Type(i % 6 == 5 ? ' ' : 'x'); }));
      std::printf("  longest %.1f ms\n", *std::max_element(times.begin(), times.end()));
      figures_.Line(what, Median(times), kAtOnce);
      figures_.Line("new paragraph", clock.Measure([&] { Type(WXK_RETURN); }), kAtOnce);
      figures_.Line("undo", clock.Measure([&] { text_->Undo(); }), kAtOnce);
    }
    const double started = NowMs();
    const std::string stored = text_->Content().Save();
    figures_.Line("store", NowMs() - started, 3 * pages_);
  }

  int pages_ = kPages;
  wxFrame* frame_ = nullptr;
  TXControl* text_ = nullptr;
  Figures figures_;
};

}  // namespace
}  // namespace mindloft::bench

wxIMPLEMENT_APP(mindloft::bench::RichTextBench);
