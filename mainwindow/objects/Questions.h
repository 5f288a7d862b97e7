#pragma once

#include <wx/string.h>

#include <cstddef>
#include <vector>

class wxWindow;

namespace mindloft {

/// The two forms of a question: for one object, and for several with their number as its parameter.
struct DeletionQuestion {
  int one;
  int several;
};

/// Asks whether `count` objects shall go; the default answer is no.
bool ConfirmDeletion(const DeletionQuestion& question, std::size_t count, wxWindow* owner);

/// Says why a command is not carried out.
void Refuse(int text, int title, wxWindow* owner, const std::vector<wxString>& parameters = {});

}  // namespace mindloft
