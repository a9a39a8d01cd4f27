#include "desktop/fonts_ahead.h"

#include <dlfcn.h>

#include <system_error>

namespace veld {

namespace {

/// The toolkit has loaded the font library already and will ask it for the same; where it uses another one there is
/// nothing to read ahead.
void ReadFontSettings() {
  void* library = dlopen("libfontconfig.so.1", RTLD_NOW | RTLD_NOLOAD);
  if (!library) return;
  if (void* read = dlsym(library, "FcInit")) reinterpret_cast<int (*)()>(read)();
}

}  // namespace

FontsAhead::FontsAhead() {
  try {
    reader_ = std::thread(ReadFontSettings);
  } catch (const std::system_error&) {
    // No thread to be had: the toolkit reads them itself, a little later.
  }
}

void FontsAhead::Wait() {
  if (reader_.joinable()) reader_.join();
}

}  // namespace veld
