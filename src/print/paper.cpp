#include "print/paper.h"

#include <langinfo.h>
#include <locale.h>

#include <cstdint>

namespace veld {

PaperSize LocalPaper() {
  constexpr int kLetterMillimetres = 279;
  const locale_t locale = newlocale(LC_PAPER_MASK, "", nullptr);
  if (!locale) return PaperSize::A4;
  // The C library gives this number in the place of a text, in its lower half.
  const auto height = static_cast<int>(reinterpret_cast<std::intptr_t>(nl_langinfo_l(_NL_PAPER_HEIGHT, locale)));
  freelocale(locale);
  return height == kLetterMillimetres ? PaperSize::Letter : PaperSize::A4;
}

}  // namespace veld
