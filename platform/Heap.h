#pragma once

namespace mindloft::platform {

/// Lets the system give memory in steps that a start seldom takes more than one of. For each step a thread
/// waits until no other one of the process is being given any, as for the hash of a password; memory that is
/// not touched costs nothing. Does nothing where the system gives it in large steps anyway.
void GrowHeapInLargeSteps();

}  // namespace mindloft::platform
