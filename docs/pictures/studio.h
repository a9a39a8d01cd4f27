#pragma once

#include <QPixmap>
#include <string>
#include <vector>

#include "desktop/desktop_platform.h"
#include "desktop/main_window.h"
#include "platform/form.h"

namespace veld::testing {

/// Takes pictures of windows as a player sees them, without a screen, into a folder.
class Studio {
 public:
  explicit Studio(std::string folder);

  /// The page of a form as it stands.
  void TakeForm(Form& form, const std::string& file);
  /// The same in a plain frame that shows the window's title, with the focus where it is asked for.
  void TakeWindow(Form& form, const std::string& file, int focus = 0);
  /// The main window; with the window of a form beside it if there is one.
  void TakeMain(const std::string& title, const std::vector<PageLine>& page, const std::string& file,
                Form* beside = nullptr);

 private:
  QPixmap Framed(const QPixmap& window, const QString& title) const;
  QPixmap FormPicture(Form& form, int focus = 0) const;
  void Save(const QPixmap& picture, const std::string& file) const;

  DesktopPlatform platform_;
  PaperStyle style_;
  std::string folder_;
};

/// Plays a character from New Character to the shop, awards him, and uses the referee's tools, and takes the pictures
/// of the handbook on the way.
void TakeHandbookPictures(Studio& studio);

}  // namespace veld::testing
