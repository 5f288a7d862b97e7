#include <algorithm>
#include <cmath>

#include "backend/tessaline/Services.h"
#include "controls/print/frmPageSetup.h"
#include "controls/richtext/DocumentPrinting.h"
#include "controls/richtext/FormatDialogs.h"
#include "controls/richtext/RichTextControl.h"
#include "controls/richtext/TableEditing.h"
#include "controls/richtext/frmFindText.h"
#include "core/ErrorHandling.h"

// The commands of RichTextControl.

namespace mindloft {
namespace {

constexpr std::int16_t kLeastZoom = 10;
constexpr std::int16_t kMostZoom = 400;
constexpr double kWhole = 100;

}  // namespace

/// For the commands that change the text: they do nothing while it is locked.
void RichTextControl::ChangeText(const char* command, const std::function<void()>& change) {
  Run(command, [&] {
    if (isLocked_ || !IsThisEnabled()) return;
    change();
    UpdateBars();
  });
}

void RichTextControl::Undo() {
  ChangeText("Undo", [&] { TXTextControl->Undo(); });
}

void RichTextControl::Redo() {
  ChangeText("Redo", [&] { TXTextControl->Redo(); });
}

void RichTextControl::Find(const wxString& text, FindOptions options) {
  Run("Find", [&] { ShowFind(false, text, options); });
}

void RichTextControl::FindReplace() {
  ChangeText("FindReplace", [&] { ShowFind(true, {}, {}); });
}

void RichTextControl::ShowFind(bool replaces, const wxString& text, FindOptions options) {
  const wxString selected = TXTextControl->GetStringSelection();
  const wxString wanted = !text.empty() ? text : selected.Contains("\n") ? wxString() : selected;
  if (find_) find_->Destroy();
  auto* window = new frmFindText(*this, replaces, wanted, options);
  find_ = window;
  window->Open();
}

void RichTextControl::Zoom(std::int16_t perCent) {
  Run("Zoom", [&] {
    TXTextControl->SetZoomFactor(std::clamp(perCent, kLeastZoom, kMostZoom) / kWhole);
    UpdateBars();
  });
}

std::int16_t RichTextControl::ZoomFactor() const {
  return static_cast<std::int16_t>(std::lround(TXTextControl->ZoomFactor() * kWhole));
}

void RichTextControl::FontDialog() {
  ChangeText("FontDialog", [&] { EditFont(*TXTextControl); });
}

void RichTextControl::ParagraphDialog() {
  ChangeText("ParagraphDialog", [&] { EditParagraph(*TXTextControl); });
}

void RichTextControl::StytlesDialog() {
  ChangeText("StytlesDialog", [&] { ChooseStyle(*TXTextControl); });
}

void RichTextControl::TabsDialog() {
  ChangeText("TabsDialog", [&] { EditTabs(*TXTextControl); });
}

void RichTextControl::ListAttribute() {
  ChangeText("ListAttribute", [&] { EditList(*TXTextControl); });
}

bool RichTextControl::CanModifyTable() const {
  return !isLocked_ && IsThisEnabled() && CaretCell(*TXTextControl).table;
}

void RichTextControl::InsertColumn() {
  ChangeText("InsertColumn", [&] { mindloft::InsertColumn(*TXTextControl); });
}

void RichTextControl::InsertRow() {
  ChangeText("InsertRow", [&] { mindloft::InsertRow(*TXTextControl); });
}

void RichTextControl::DeleteColumn() {
  ChangeText("DeleteColumn", [&] { mindloft::DeleteColumn(*TXTextControl); });
}

void RichTextControl::DeleteRow() {
  ChangeText("DeleteRow", [&] { mindloft::DeleteRow(*TXTextControl); });
}

void RichTextControl::TableProperties() {
  ChangeText("TableProperties", [&] { EditTable(*TXTextControl); });
}

void RichTextControl::NewTable() {
  ChangeText("NewTable", [&] { AskForTable(*TXTextControl); });
}

void RichTextControl::Clip(std::int16_t code) {
  Run("Clip", [&] {
    if (!IsThisEnabled()) return;
    if (code == kClipCopy) TXTextControl->Copy();
    if (isLocked_) return;
    if (code == kClipCut) TXTextControl->Cut();
    if (code == kClipPaste) TXTextControl->Paste();
    if (code == kClipDelete) TXTextControl->DeleteSelection();
  });
}

void RichTextControl::PageSetup() {
  Run("PageSetup", [&] {
    if (!AskForPage(*this, page_)) return;
    ApplyPage();
  });
}

void RichTextControl::PrintPreview() {
  Run("PrintPreview", [&] { DocumentPrinting(*this, page_).Preview(TXTextControl->GetBuffer()); });
}

void RichTextControl::Print() {
  Run("Print", [&] { DocumentPrinting(*this, page_).Print(TXTextControl->GetBuffer()); });
}

}  // namespace mindloft
