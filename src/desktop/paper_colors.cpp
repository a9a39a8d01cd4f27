#include "desktop/paper_colors.h"

#include <QPalette>

namespace veld {

namespace {

const PaperColors* inUse = &kLightPaper;

}  // namespace

const PaperColors& Colors() {
  return *inUse;
}

QPalette PaperPalette(const PaperColors& colors) {
  QPalette palette;
  const std::pair<QPalette::ColorRole, QRgb> kRoles[] = {
      {QPalette::Window, colors.Desk},
      {QPalette::WindowText, colors.Text},
      {QPalette::Base, colors.Paper},
      {QPalette::AlternateBase, colors.OtherRow},
      {QPalette::Text, colors.Text},
      {QPalette::PlaceholderText, colors.Hint},
      {QPalette::Button, colors.Button},
      {QPalette::ButtonText, colors.Text},
      {QPalette::BrightText, colors.ChosenText},
      {QPalette::Highlight, colors.Chosen},
      {QPalette::HighlightedText, colors.ChosenText},
      {QPalette::Link, colors.Ink},
      {QPalette::LinkVisited, colors.Ink},
      {QPalette::ToolTipBase, colors.Paper},
      {QPalette::ToolTipText, colors.Text},
      {QPalette::Light, colors.Paper},
      {QPalette::Midlight, colors.Wash},
      {QPalette::Mid, colors.Edge},
      {QPalette::Dark, colors.Edge},
      {QPalette::Shadow, colors.Text},
  };
  for (const auto& [role, color] : kRoles) palette.setColor(role, QColor(color));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, QColor(colors.Faint));
  }
  palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(colors.Wash));
  palette.setColor(QPalette::Disabled, QPalette::HighlightedText, QColor(colors.Faint));
  return palette;
}

void FollowScheme(QPalette& palette) {
  const bool isDark = palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
  inUse = isDark ? &kDarkPaper : &kLightPaper;
  palette = PaperPalette(*inUse);
}

}  // namespace veld
