#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/layout.h"

namespace veld {

enum class KeyKind : std::uint8_t {
  None,  ///< nothing that a page has a use for; after a wait of limited length, no key at all
  Character,
  Enter,
  Escape,
  Tab,
  BackTab,
  Up,
  Down,
  Left,
  Right,
  Home,
  End,
  PageUp,
  PageDown,
  Backspace,
  Delete,
  ClearLine,  ///< Ctrl+U
  MainMenu,   ///< F10
  PageMenu,   ///< F9 or Shift+F10
  TakeBack,   ///< F2 or Ctrl+Z
  DoAgain,    ///< F3
  Help,       ///< F1, or Alt+? where the terminal keeps F1 for itself
  Shortcut,   ///< Ctrl and the Character, a lower-case letter
};

struct Key {
  KeyKind Kind = KeyKind::None;
  char32_t Character = 0;
  bool IsAlt = false;  ///< a Character with the Alt key held
};

/// How something on the screen is written.
enum class Ink : std::uint8_t {
  Desk,      ///< behind the pages: the page of the main window
  DeskBold,  ///< its title and headings
  Paper,     ///< labels, lists
  Bold,      ///< titles and headings
  Written,   ///< what the character has
  Faint,     ///< what can not be used
  Chosen,    ///< the row chosen in a list that the keys do not go to
  Focus,     ///< what the keys go to
  Bar,       ///< the menu bar, the line of keys and that of the focus
  BarFocus,  ///< the open menu of the bar
};

/// Something drawn on the screen, over what was put there before it.
class Layer {
 public:
  virtual ~Layer() = default;
  virtual void Draw(bool isActive) = 0;  ///< active: the keys go to it
};

/// The text terminal, from when it is made to its end; there is one. Layers are drawn one over another before each
/// wait for a key, and only what has changed is sent.
///
/// An interrupt, a hang-up, a request to end and the end of the input count as the loss of the terminal: from then on
/// nothing is drawn or waited for.
class Screen {
 public:
  Screen();
  ~Screen();
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;

  bool IsOpen() const { return isOpen_; }  ///< false if the terminal is of no known kind
  bool IsLost() const;

  /// Draws the layers and waits for a key, at most `milliseconds` if that is not negative.
  Key ReadKey(int milliseconds = -1);
  void Paint();

  void Push(Layer& layer) { layers_.push_back(&layer); }
  void Remove(Layer& layer) { std::erase(layers_, &layer); }

  // For layers that draw.
  int Rows() const;
  int Columns() const;
  void SetClip(const PageRect& clip) { clip_ = clip; }  ///< nothing is drawn outside it
  void ClearClip() { clip_ = {0, 0, Columns(), Rows()}; }
  /// Writes a text from its cell `left` on into `width` cells, filled up with blanks.
  void Put(int y, int x, std::string_view text, int width, Ink ink, int left = 0, bool marksCut = false);
  /// Writes a text in which '&' stands before a letter; that letter is underlined.
  void PutMarked(int y, int x, std::string_view text, int width, Ink ink);
  void Fill(const PageRect& area, Ink ink);
  void Frame(const PageRect& area, std::string_view title, Ink ink);
  void VerticalLine(int y, int x, int height, Ink ink);
  /// The bar of what is `total` long and shown from `first` on in `height` lines; a plain line if all is shown.
  void ScrollBar(int y, int x, int height, int first, int total, Ink ink);
  void SetCursor(int y, int x);
  void ShowKeys(std::string_view keys);  ///< in the last line
  /// Shows a text in the line above that, and in as many lines more as it takes, up to a third of the screen; at the
  /// top of the screen if it would reach over a line above `bottom`.
  void ShowText(std::string_view text, int bottom);
  void Beep();

  /// Asks the terminal to put a text on its clipboard; whether it does so it does not tell. False if it is lost.
  bool SendToClipboard(std::string_view text);

 private:
  bool WaitForInput(int milliseconds);
  Key TakeKey();
  void FollowSize();

  std::vector<Layer*> layers_;
  PageRect clip_;
  int cursorY_ = 0;
  int cursorX_ = 0;
  int failedReads_ = 0;
  bool isOpen_ = false;
  bool isLost_ = false;
};

/// Puts a layer on top of the others for as long as it lives.
class OnTop {
 public:
  OnTop(Screen& screen, Layer& layer) : screen_(screen), layer_(layer) { screen_.Push(layer_); }
  ~OnTop() { screen_.Remove(layer_); }
  OnTop(const OnTop&) = delete;
  OnTop& operator=(const OnTop&) = delete;

 private:
  Screen& screen_;
  Layer& layer_;
};

}  // namespace veld
