#include "controls/richtext/SeenPlaces.h"

#include <wx/dcclient.h>

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <utility>
#include <vector>

#include "controls/richtext/RichEditor.h"
#include "platform/ui/TextPlaces.h"

namespace mindloft {
namespace {

/// What the toolkit draws in one go; all are drawn one behind the other, from left to right.
struct Piece {
  wxString text;
  int left = 0;
  wxArrayInt ends;  ///< of its characters, by which the toolkit looks for them
};

/// A line with letters that run from right to left.
class SeenLine {
 public:
  SeenLine(RichEditor& editor, const wxRichTextParagraph& paragraph, const wxRichTextLine& line)
      : left_(line.GetAbsolutePosition().x) {
    wxClientDC dc(&editor);
    int x = left_;
    int drawn = left_;
    for (auto* node = paragraph.GetChildren().GetFirst(); node; node = node->GetNext()) {
      wxRichTextRange range = line.GetAbsoluteRange();
      const auto& child = *node->GetData();
      if (child.GetRange().IsOutside(range)) continue;
      const auto* part = dynamic_cast<const wxRichTextPlainText*>(&child);
      range.LimitTo(child.GetRange());
      Piece piece{part ? part->GetTextForRange(range) : wxString("\t"), x, {}};
      // Tabulators and other objects are drawn in another way.
      if (piece.text.Contains("\t")) return;
      if (piece.text.empty()) continue;
      const auto look = paragraph.GetCombinedAttributes(child.GetAttributes());
      dc.SetFont(editor.GetBuffer().GetFontTable().FindFont(look));
      // The toolkit looks for places without regard to the zoom, which rounds letters in another way.
      dc.SetUserScale(1, 1);
      dc.GetPartialTextExtents(piece.text, piece.ends);
      dc.SetUserScale(editor.ZoomFactor(), editor.ZoomFactor());
      if (!carets_.empty()) carets_.pop_back();
      for (const int caret : platform::CaretOffsets(dc, piece.text)) carets_.push_back(drawn + caret);
      drawn += dc.GetTextExtent(piece.text).x;
      x += piece.ends.back();
      pieces_.push_back(std::move(piece));
    }
    isKnown_ = !pieces_.empty();
  }

  bool IsKnown() const { return isKnown_; }

  /// Where the caret is seen behind so many characters of the line.
  int SeenX(std::size_t characters) const { return carets_[std::min(characters, carets_.size() - 1)]; }

  /// Behind how many characters the caret is seen nearest to there.
  std::size_t CharactersAt(int x) const {
    const auto distance = [x](int caret) { return std::abs(caret - x); };
    const auto nearest = std::min_element(
        carets_.begin(), carets_.end(), [&](int one, int other) { return distance(one) < distance(other); });
    return static_cast<std::size_t>(nearest - carets_.begin());
  }

  /// Where the toolkit looks for the place behind so many characters.
  int ToolkitX(std::size_t characters) const {
    if (characters == 0) return left_ - 1;
    for (const Piece& piece : pieces_) {
      const bool isLast = &piece == &pieces_.back();
      if (characters > piece.text.length() && !isLast) {
        characters -= piece.text.length();
        continue;
      }
      const std::size_t last = std::min(characters, piece.text.length()) - 1;
      const int end = piece.left + piece.ends[last];
      if (isLast && last + 1 == piece.text.length()) return end + 1;
      // Marks above and below letters have no width: what follows them is met from its own beginning.
      const bool isMark = piece.ends[last] == (last > 0 ? piece.ends[last - 1] : 0);
      return isMark ? end + 1 : end;
    }
    return left_;
  }

 private:
  int left_;
  std::vector<Piece> pieces_;
  std::vector<int> carets_;  ///< before each character, and behind the last
  bool isKnown_ = false;
};

/// The caret's line, and how many of its characters stand before the caret.
struct CaretLine {
  const wxRichTextParagraph* paragraph = nullptr;
  const wxRichTextLine* line = nullptr;
  std::size_t characters = 0;
};

CaretLine LineOfCaret(const RichEditor& editor) {
  const auto* text = editor.GetFocusObject();
  const auto* line = editor.GetVisibleLineForCaretPosition(editor.GetCaretPosition());
  if (!line) return {};
  const wxRichTextRange range = line->GetAbsoluteRange();
  const long before = editor.GetInsertionPoint() - range.GetStart();
  if (before < 0 || before > range.GetLength()) return {};
  return {text->GetParagraphAtPosition(range.GetStart()), line, static_cast<std::size_t>(before)};
}

/// The line of that place, where it has letters that run from right to left.
std::optional<SeenLine> LineAt(RichEditor& editor, const wxRichTextParagraph* paragraph,
                               const wxRichTextLine* line) {
  if (!paragraph || !line ||
      !platform::HasRightToLeftLetters(paragraph->GetTextForRange(line->GetAbsoluteRange())))
    return std::nullopt;
  SeenLine seen(editor, *paragraph, *line);
  if (!seen.IsKnown()) return std::nullopt;
  return seen;
}

/// What the toolkit finds at a point.
struct Found {
  const wxRichTextParagraphLayoutBox* text = nullptr;  ///< null: nothing
  long place = 0;
  bool isBehind = false;  ///< nearer to what follows the place
};

Found FindAt(RichEditor& editor, wxRichTextParagraphLayoutBox& text, const wxPoint& point, int flags) {
  wxClientDC dc(&editor);
  editor.PrepareDC(dc);
  wxRichTextDrawingContext context(&editor.GetBuffer());
  wxRichTextObject* hit = nullptr;
  wxRichTextObject* around = nullptr;
  long place = 0;
  const int found = text.HitTest(dc, context, point, place, &hit, &around, flags);
  if (found & wxRICHTEXT_HITTEST_NONE) return {};
  return {dynamic_cast<wxRichTextParagraphLayoutBox*>(around), place,
          (found & wxRICHTEXT_HITTEST_AFTER) != 0};
}

std::optional<SeenLine> LineAt(RichEditor& editor, const Found& found) {
  if (!found.text) return std::nullopt;
  return LineAt(editor, found.text->GetParagraphAtPosition(found.place),
                found.text->GetLineAtPosition(found.place));
}

/// By which x the toolkit finds the place that is seen at this point of the paper.
std::optional<int> ToolkitX(RichEditor& editor, const wxPoint& point) {
  const auto line = LineAt(editor, FindAt(editor, editor.GetBuffer(), point, 0));
  if (!line) return std::nullopt;
  return line->ToolkitX(line->CharactersAt(point.x));
}

int ToolkitCaretX(RichEditor& editor) {
  wxRect caret;
  editor.GetCaretPositionForIndex(editor.GetCaretPosition(), caret);
  return caret.x;
}

/// By a distance on the paper as it would be without zoom.
void MoveCaretPicture(RichEditor& editor, int distance) {
  wxCaret* caret = editor.GetCaret();
  // Outside the window the toolkit hides it at a place of its own.
  if (!caret || distance == 0 || caret->GetPosition().x < 0) return;
#if !wxRICHTEXT_USE_OWN_CARET
  distance = static_cast<int>(distance * editor.ZoomFactor());
#endif
  caret->Move(caret->GetPosition() + wxPoint(distance, 0));
}

}  // namespace

int SeenCaretX(RichEditor& editor) {
  const CaretLine caret = LineOfCaret(editor);
  const auto line = LineAt(editor, caret.paragraph, caret.line);
  return line ? line->SeenX(caret.characters) : ToolkitCaretX(editor);
}

std::optional<long> PlaceSeenAt(RichEditor& editor, wxRichTextParagraphLayoutBox& text,
                                const wxPoint& point) {
  const Found found = FindAt(editor, text, point,
                             wxRICHTEXT_HITTEST_NO_NESTED_OBJECTS | wxRICHTEXT_HITTEST_NO_FLOATING_OBJECTS);
  if (!found.text) return std::nullopt;
  if (const auto line = LineAt(editor, found))
    return found.text->GetLineAtPosition(found.place)->GetAbsoluteRange().GetStart() +
           static_cast<long>(line->CharactersAt(point.x));
  return found.isBehind ? found.place + 1 : found.place;
}

void ShowCaretAsSeen(RichEditor& editor) {
  const CaretLine caret = LineOfCaret(editor);
  if (const auto line = LineAt(editor, caret.paragraph, caret.line))
    MoveCaretPicture(editor, line->SeenX(caret.characters) - ToolkitCaretX(editor));
}

void AimCaret(RichEditor& editor, int lines) {
  constexpr int kInside = 2;
  const auto* goal = LineFromCaret(editor, lines);
  if (!goal) return;
  const int seen = SeenCaretX(editor);
  const auto x = ToolkitX(editor, {seen, goal->GetAbsolutePosition().y + kInside});
  if (x) MoveCaretPicture(editor, *x - seen);
}

void AimMouse(RichEditor& editor, wxMouseEvent& event) {
  const wxPoint point = editor.GetUnscaledPoint(editor.GetLogicalPoint(event.GetPosition()));
  if (const auto x = ToolkitX(editor, point))
    event.SetX(editor.GetPhysicalPoint(editor.GetScaledPoint(wxPoint(*x, point.y))).x);
}

bool RunsToTheLeftAtCaret(RichEditor& editor) {
  const CaretLine caret = LineOfCaret(editor);
  const auto line = LineAt(editor, caret.paragraph, caret.line);
  if (!line) return false;
  const bool isEnd = static_cast<long>(caret.characters) >= caret.line->GetAbsoluteRange().GetLength();
  const std::size_t other = isEnd && caret.characters > 0 ? caret.characters - 1 : caret.characters + 1;
  const int step = line->SeenX(other) - line->SeenX(caret.characters);
  return isEnd ? step > 0 : step < 0;
}

wxRichTextLine* LineFromCaret(const RichEditor& editor, int lines) {
  const auto* text = editor.GetFocusObject();
  const long present =
      text->GetVisibleLineNumber(editor.GetCaretPosition(), true, editor.GetCaretAtLineStart());
  return present < 0 || present + lines < 0 ? nullptr : text->GetLineForVisibleLineNumber(present + lines);
}

}  // namespace mindloft
