#pragma once

#include <wx/string.h>

#include <vector>

class wxWindow;

namespace mindloft::Tessaline {

/// The titles of message boxes, as numbers of their texts.
inline constexpr int kInformationTitle = 59101;
inline constexpr int kWarningTitle = 59102;

/// The buttons of a message box and its default.
enum class Buttons { OK, YesNo, YesNoDefaultNo };
/// The values of the standard message-box style flags.
enum class MessageKind { Critical = 16, Question = 32, Exclamation = 48, Information = 64 };

/// Numbered message boxes. The box is a wxMessageDialog whose name is "message 55101", so that tests can tell
/// them apart.
class Messenger {
 public:
  /// Shows the message (exclamation, OK) with its parameters filled in; the title is text 59101.
  void ShowMessage(int number, const std::vector<wxString>& parameters = {},
                   wxWindow* parent = nullptr) const;
  /// Shows a text under a numbered title; true when the user pressed Yes or OK.
  bool Ask(int textNumber, int titleNumber, Buttons buttons, MessageKind kind,
           const std::vector<wxString>& parameters = {}, wxWindow* parent = nullptr) const;
};

}  // namespace mindloft::Tessaline
