#include "shell/about.h"

#include "generation/main_title.h"
#include "platform/form.h"
#include "platform/platform.h"
#include "text/format.h"

namespace veld {

namespace {

constexpr int kVersion = 98;
constexpr int kOk = 1;

constexpr ControlTemplate kAboutControls[] = {
    TitleAt(0, 0, kProgramTitle),
    LabelAt(1, 0, "VELD, a character generator and referee's toolkit for Quellmarch"),
    ResultAt(2, 0, kVersion, 20),
    LabelAt(3, 0, "Written by the VELD team, for the players and referees at the table."),
    ButtonAt(5, 0, kOk, "OK", ButtonRole::Both),
};
constexpr std::string_view kAboutHelp =
    "The program's name and version. Tell the version when you report a fault: characters of this version and older "
    "ones load here, those of a later one may not. To begin playing, close this and choose File, New Character.";
constexpr FormTemplate kAbout{"About", "About VELD", kAboutControls, kAboutHelp};

}  // namespace

void RunAbout(Game& game) {
  Form form(kAbout);
  form.SetText(kVersion, Format("Version %s", FileVersion));
  form.onCommand = [&](int) { form.Close(); };
  game.platform.RunForm(form);
}

}  // namespace veld
