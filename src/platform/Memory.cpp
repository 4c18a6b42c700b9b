#include "platform/Memory.h"

#include <link.h>
#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>

namespace kv {
namespace {

constexpr int kLargeBlock = 64 << 10;  // bytes; a card's face is smaller

/// Whether code is changed when the library is loaded, so that its pages are not those of the file any more.
bool CodeIsChanged(const dl_phdr_info& library) {
  for (int i = 0; i < library.dlpi_phnum; ++i) {
    if (library.dlpi_phdr[i].p_type != PT_DYNAMIC) continue;
    const auto* entry = reinterpret_cast<const ElfW(Dyn)*>(library.dlpi_addr + library.dlpi_phdr[i].p_vaddr);
    for (; entry->d_tag != DT_NULL; ++entry) {
      if (entry->d_tag == DT_TEXTREL) return true;
      if (entry->d_tag == DT_FLAGS && (entry->d_un.d_val & DF_TEXTREL) != 0) return true;
    }
  }
  return false;
}

int ReturnSegments(dl_phdr_info* library, std::size_t, void*) {
  if (CodeIsChanged(*library)) return 0;
  const auto page = static_cast<std::uintptr_t>(::sysconf(_SC_PAGESIZE));
  for (int i = 0; i < library->dlpi_phnum; ++i) {
    const auto& segment = library->dlpi_phdr[i];
    if (segment.p_type != PT_LOAD || (segment.p_flags & PF_W) != 0) continue;
    const std::uintptr_t begin = (library->dlpi_addr + segment.p_vaddr) & ~(page - 1);
    const std::uintptr_t end = library->dlpi_addr + segment.p_vaddr + segment.p_filesz;
    static_cast<void>(::madvise(reinterpret_cast<void*>(begin), end - begin, MADV_DONTNEED));
  }
  return 0;
}

}  // namespace

void ReturnLargeBlocks() {
  // Set by hand it stays: by itself it grows with every large block that is freed.
  static_cast<void>(::mallopt(M_MMAP_THRESHOLD, kLargeBlock));
}

void ReturnCleanPages() {
  static_cast<void>(::dl_iterate_phdr(ReturnSegments, nullptr));
}

}  // namespace kv
