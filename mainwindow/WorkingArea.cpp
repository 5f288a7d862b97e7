#include "mainwindow/WorkingArea.h"

#include <wx/frame.h>
#include <wx/sizer.h>

#include <algorithm>

#include "backend/tessaline/Services.h"
#include "controls/explorer/ctExplorer.h"
#include "controls/rows/DirectoryImages.h"
#include "controls/rows/RecordRows.h"
#include "mainwindow/FormKey.h"
#include "mainwindow/Texts.h"

namespace mindloft {

namespace {

constexpr const char* kBorder = "Border";
/// What is left to the tree and the list, in pixels at 96 dpi, however far the border was moved.
constexpr int kLeastWidth = 60;

}  // namespace

WorkingArea::WorkingArea(wxFrame& frame) : frame_(frame) {
  frame_.SetSizer(new wxBoxSizer(wxVERTICAL));
  Create();
}

void WorkingArea::Create() {
  explorer_ = new ctExplorer(&frame_, "ctMainForm");
  explorer_->SetImages(ExplorerImages());
  frame_.GetSizer()->Add(explorer_, wxSizerFlags(1).Expand());
}

void WorkingArea::Rebuild() {
  const int border = explorer_->SashPosition();
  frame_.GetSizer()->Detach(explorer_);
  Disconnect();
  explorer_->Hide();
  explorer_->Destroy();
  Create();
  frame_.Layout();
  explorer_->SetSashPosition(border);
}

void WorkingArea::Disconnect() {
  // Its events may still be in the queue.
  explorer_->trChange = {};
  explorer_->trContextMenu = {};
  explorer_->lvSelChange = {};
  explorer_->lvItemDblClick = {};
  explorer_->lvContextMenu = {};
  explorer_->lvCountChange = {};
  explorer_->keyDown = {};
  explorer_->ClearList();
}

void WorkingArea::LoadBorder() {
  const auto stored = GetRegistry().GetNumber(platform::RegistryRoot::CurrentUser, kFormKey, kBorder);
  const int least = frame_.FromDIP(kLeastWidth);
  if (stored < 0) return;
  // The window may have become smaller since.
  const int most = frame_.GetClientSize().x - least;
  explorer_->SetSashPosition(std::max(least, std::min(static_cast<int>(stored), most)));
}

void WorkingArea::SaveBorder() const {
  GetRegistry().SetNumber(platform::RegistryRoot::CurrentUser, kFormKey, kBorder, explorer_->SashPosition());
}

}  // namespace mindloft
