#pragma once

class wxWindow;

namespace mindloft {

class Error;
namespace Corvane {
class DGroup;
}

/// Brings the puts of a group together with what somebody else has stored meanwhile; see ResolveConflict.
/// Changes of members do not stand against each other: additions and removals hold whatever others did.
bool MergeGroup(wxWindow* parent, Corvane::DGroup& group, const Error& conflict);

}  // namespace mindloft
