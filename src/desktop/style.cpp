#include "desktop/style.h"

#include <QApplication>
#include <QFontMetrics>
#include <QLocale>
#include <QScreen>
#include <algorithm>
#include <clocale>

#include "desktop/paper_look.h"
#include "desktop/text_to_read.h"

namespace veld {

namespace {

constexpr int kLeastPixels = 13;  // a smaller font than this is hard to read on a ruled page
constexpr int kUsualPitch = 20;

/// The height of a font in pixels. Asking the font itself would load it.
double PixelsOf(const QFont& font) {
  if (font.pixelSize() > 0) return font.pixelSize();
  return font.pointSizeF() * QGuiApplication::primaryScreen()->logicalDotsPerInchY() / 72;
}

/// The desktop's font; where there is no desktop that names one, one that is crisp at small sizes (the system's own
/// choice stands in for it where it is not installed).
QFont PageFont() {
  QFont font = QApplication::font();
  if (font.family().startsWith("Sans")) font.setFamily("Liberation Sans");
  if (PixelsOf(font) < kLeastPixels) font.setPixelSize(kLeastPixels);
  return font;
}

void SetDistances(PageMetrics& m, const QFontMetrics& font) {
  const int height = font.height();
  m.Pitch = std::max(kUsualPitch, height + 5);
  m.Baseline = m.Pitch - 1 - font.descent();
  m.Character = font.horizontalAdvance('0');
  m.MarginLeft = m.MarginRight = m.Pitch * 6 / 5;
  m.MarginTop = m.Pitch / 2 + 1;
  m.MarginBottom = m.Pitch;
  m.ColumnGap = m.Pitch * 4 / 5;
  m.ControlGap = m.Pitch / 2;
  m.ButtonPadding = 14;
  m.ButtonLeast = m.Pitch * 4;
  m.EditPadding = 12;
  m.ComboPadding = 32;
  m.ListPadding = 24;
  m.MarkWidth = font.ascent() + 14;
  m.MarkRise = font.ascent();
  m.MarkHeight = height;
  m.FrameAbove = 1;
  m.Roomy = {.BoxLines = 2, .TitleLines = 2, .BoxRise = font.ascent() + 5, .BoxHeight = height + 10};
  m.Dense = {.BoxLines = 1, .TitleLines = 2, .BoxRise = font.ascent() + 1, .BoxHeight = height + 2};
}

}  // namespace

PaperStyle MakePaperStyle(const QFont& font) {
  PaperStyle style{.Text = font, .Bold = font, .Title = font, .Metrics = {}};
  style.Bold.setBold(true);
  style.Title.setBold(true);
  style.Title.setPixelSize(static_cast<int>(PixelsOf(font) * 1.4));
  SetDistances(style.Metrics, QFontMetrics(style.Text));
  // The other two faces are loaded when the first form needs them: the main window has none.
  style.Metrics.TextWidth = [text = style.Text, bold = style.Bold, title = style.Title](std::string_view line,
                                                                                        TextFace face) {
    const QFont& chosen = face == TextFace::Title ? title : face == TextFace::Bold ? bold : text;
    return QFontMetrics(chosen).horizontalAdvance(ToQtLine(line)) + 1;
  };
  return style;
}

void SetUpLook() {
  std::setlocale(LC_NUMERIC, "C");
  QLocale::setDefault(QLocale::c());
  QApplication::setQuitOnLastWindowClosed(false);  // windows follow each other; the main window ends the program
  QApplication::setStyle(MakePaperLook());
  QApplication::setFont(PageFont());
  TellTextsToRead();
}

QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString ToQtLine(std::string_view text) {
  QString line = ToQt(text);
  for (QChar& c : line) {
    if (c == '\n' || c == '\r' || c == '\t') c = ' ';
  }
  return line;
}

QString ToQtTitle(std::string_view title) {
  return ToQtLine(title).replace("[*]", "[*][*]");
}

}  // namespace veld
