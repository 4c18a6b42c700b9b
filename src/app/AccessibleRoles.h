// What the game's own controls are to a screen reader, and how it presses them.
#pragma once

namespace kv {

/// Makes the controls known to the toolkit's accessibility; once for a process, before a window is shown.
void InstallAccessibleRoles();

}  // namespace kv
