// Writes pictures of the program's windows; make.sh runs it.
//
//   veld_pictures FOLDER light|dark forms      every form, as it opens and after some use, and the main window
//   veld_pictures FOLDER light|dark handbook   those of the handbook

#include <QApplication>
#include <QPainter>
#include <cstdio>
#include <string_view>

#include "desktop/form_window.h"
#include "desktop/system_colors.h"
#include "pictures/studio.h"
#include "sheets/character_page.h"
#include "shell/main_menu.h"
#include "support/every_form.h"

namespace veld::testing {

namespace {

constexpr int kTitleHeight = 26;

}  // namespace

Studio::Studio(std::string folder)
    : platform_({.UsesNativeFileDialogs = false}),
      style_(MakePaperStyle(QApplication::font())),
      folder_(folder + '/') {}

void Studio::TakeForm(Form& form, const std::string& file) {
  Save(FormPicture(form), file);
}

void Studio::TakeWindow(Form& form, const std::string& file, int focus) {
  Save(Framed(FormPicture(form, focus), ToQt(form.Title())), file);
}

void Studio::TakeMain(const std::string& title, const std::vector<PageLine>& page, const std::string& file,
                      Form* beside) {
  MainPage window;
  window.SetMenu(MainMenu());
  window.ShowPage(style_, page);
  window.show();
  QApplication::processEvents();
  QPixmap picture = window.grab();
  if (beside) {
    QPainter painter(&picture);
    painter.drawPixmap(window.mapFromGlobal(window.PagePlace()) + QPoint(60, 40),
                       Framed(FormPicture(*beside), ToQt(beside->Title())));
  }
  Save(Framed(picture, ToQt(title)), file);
}

QPixmap Studio::FormPicture(Form& form, int focus) const {
  FormWindow window(form, style_, nullptr);
  window.ShowAt({});
  QApplication::processEvents();
  if (focus != 0) form.Focus(focus);
  QApplication::processEvents();
  return window.grab();
}

/// What a window manager draws around a window, in a plain way.
QPixmap Studio::Framed(const QPixmap& window, const QString& title) const {
  const QSize size = window.deviceIndependentSize().toSize();
  QPixmap framed((size + QSize(2, kTitleHeight + 1)) * window.devicePixelRatio());
  framed.setDevicePixelRatio(window.devicePixelRatio());
  QPainter painter(&framed);
  const QRect bar(0, 0, size.width() + 2, kTitleHeight);
  painter.fillRect(QRect(bar.topLeft(), framed.deviceIndependentSize().toSize()), QColor(Colors().Edge));
  painter.fillRect(bar.adjusted(1, 1, -1, 0), QColor(Colors().Wash));
  painter.setFont(style_.Bold);
  painter.setPen(QColor(Colors().Text));
  painter.drawText(bar, Qt::AlignCenter, title);
  painter.drawPixmap(1, kTitleHeight, window);
  return framed;
}

void Studio::Save(const QPixmap& picture, const std::string& file) const {
  const std::string path = folder_ + file + ".png";
  if (!picture.save(QString::fromStdString(path))) std::fprintf(stderr, "can not write %s\n", path.c_str());
}

namespace {

int TakeEveryForm(Studio& studio) {
  studio.TakeMain("Tolmar's Plain Quellmarch Toolkit", NobodyPage(), "MainWindow");
  const auto missing = ShowEveryForm(
      [&](Form& form, bool isUsed) { studio.TakeForm(form, std::string(form.Name()) + (isUsed ? "-used" : "")); });
  for (const std::string& name : missing) std::fprintf(stderr, "%s did not come up\n", name.c_str());
  return missing.empty() ? 0 : 1;
}

}  // namespace

}  // namespace veld::testing

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc != 4) return 2;
  veld::testing::Studio studio(argv[1]);
  veld::testing::ChangeSystemTo(std::string_view(argv[2]) == "dark" ? QColor(40, 40, 40) : QColor(240, 240, 240));
  if (std::string_view(argv[3]) == "forms") return veld::testing::TakeEveryForm(studio);
  veld::testing::TakeHandbookPictures(studio);
  return 0;
}
