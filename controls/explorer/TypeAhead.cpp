#include "controls/explorer/TypeAhead.h"

#include <algorithm>

namespace mindloft {

TypeAhead::TypeAhead() : timer_(this) {
  Bind(wxEVT_TIMER, [this](wxTimerEvent&) { Reset(); });
}

void TypeAhead::Append(wxUniChar character) {
  text_ += character;
  timer_.StartOnce(kPause);
}

void TypeAhead::Backspace() {
  if (text_.empty()) return;
  text_.RemoveLast();
  if (text_.empty())
    timer_.Stop();
  else
    timer_.StartOnce(kPause);
}

void TypeAhead::Reset() {
  text_.clear();
  timer_.Stop();
}

bool TypeAhead::IsRepetition() const {
  return text_.length() > 1 &&
         std::all_of(text_.begin(), text_.end(), [this](wxUniChar each) { return each == text_[0]; });
}

}  // namespace mindloft
