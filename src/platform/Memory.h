// How the process holds memory. It must never be needed for anything to work.
#pragma once

namespace kv {

/// Large blocks go back to the system as soon as they are freed: the pictures of a screen that was left, for
/// one, are of sizes that no later screen asks for again. Once, before anything large is made.
void ReturnLargeBlocks();

}  // namespace kv
