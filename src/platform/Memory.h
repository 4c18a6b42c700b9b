// How the process holds memory. It must never be needed for anything to work.
#pragma once

namespace kv {

/// Large blocks go back to the system as soon as they are freed: the pictures of a screen that was left, for
/// one, are of sizes that no later screen asks for again. Once, before anything large is made.
void ReturnLargeBlocks();

/// What the program and its libraries keep in memory only to be read (code, tables of symbols) goes back to
/// the system: most of it was needed to start, or by a screen that was left. What is needed again comes from
/// the system's cache of files, a page at a time. Breakpoints of a debugger in such pages are lost.
void ReturnCleanPages();

}  // namespace kv
