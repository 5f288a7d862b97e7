#include "mainwindow/objects/Questions.h"

#include "backend/tessaline/GroupedNumber.h"
#include "backend/tessaline/Services.h"
#include "mainwindow/objects/ObjectTexts.h"

namespace mindloft {

using Tessaline::Buttons;
using Tessaline::MessageKind;

bool ConfirmDeletion(const DeletionQuestion& question, std::size_t count, wxWindow* owner) {
  std::vector<wxString> parameters;
  if (count > 1) parameters.push_back(GroupedNumber(static_cast<std::int64_t>(count)));
  return GetMessenger().Ask(count > 1 ? question.several : question.one, texts::kDeletionTitle,
                            Buttons::YesNoDefaultNo, MessageKind::Question, parameters, owner);
}

bool MayDeleteSelected(std::int64_t selected, wxWindow* owner) {
  if (selected <= kMostDeletedAtOnce) return true;
  Refuse(texts::kTooManyToDelete, Tessaline::kInformationTitle, owner,
         {GroupedNumber(kMostDeletedAtOnce), GroupedNumber(selected)});
  return false;
}

void Refuse(int text, int title, wxWindow* owner, const std::vector<wxString>& parameters) {
  GetMessenger().Ask(text, title, Buttons::OK, MessageKind::Exclamation, parameters, owner);
}

}  // namespace mindloft
