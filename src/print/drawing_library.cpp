#include "print/drawing_library.h"

#include <dlfcn.h>

namespace veld {

namespace {

/// Pango's Cairo part draws in all the others, and a name is looked for in those too.
constexpr char kLibrary[] = "libpangocairo-1.0.so.0";

bool LoadCalls(DrawingLibrary& library) {
  void* opened = dlopen(kLibrary, RTLD_NOW | RTLD_LOCAL);
  if (!opened) return false;
  bool isWhole = true;
#define VELD_CALL(name)                                                          \
  library.name = reinterpret_cast<decltype(library.name)>(dlsym(opened, #name)); \
  isWhole = isWhole && library.name;
  VELD_DRAWING_CALLS(VELD_CALL)
#undef VELD_CALL
  return isWhole;
}

}  // namespace

const DrawingLibrary* OpenDrawingLibrary() {
  static DrawingLibrary library;
  static const bool isThere = LoadCalls(library);
  return isThere ? &library : nullptr;
}

}  // namespace veld
