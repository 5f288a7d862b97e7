#pragma once

#include <wx/string.h>

#include <cstddef>
#include <cstdint>
#include <vector>

class wxWindow;

namespace mindloft {

/// The greatest number of objects that one command deletes: as many as one takes over from a list.
inline constexpr std::int64_t kMostDeletedAtOnce = 50'000;

/// The two forms of a question: for one object, and for several with their number as its parameter.
struct DeletionQuestion {
  int one;
  int several;
};

/// Asks whether `count` objects shall go; the default answer is no.
bool ConfirmDeletion(const DeletionQuestion& question, std::size_t count, wxWindow* owner);

/// Whether not too many objects are selected for one deletion; otherwise tells the user so. To be asked
/// before any of them is read.
bool MayDeleteSelected(std::int64_t selected, wxWindow* owner);

/// Says why a command is not carried out.
void Refuse(int text, int title, wxWindow* owner, const std::vector<wxString>& parameters = {});

}  // namespace mindloft
