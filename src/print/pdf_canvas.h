#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace veld {

/// The colours of the program's own pages.
enum class Ink {
  Text,  ///< labels
  Blue,  ///< what the character has
  Edge,  ///< of boxes, and lines to write on
  Wash,  ///< under what is marked
};

enum class Align { Left, Center, Right };

struct TextStyle {
  double Size = 7.5;
  bool IsBold = false;
  Ink Color = Ink::Text;
  Align Side = Align::Left;
};

/// A part of a text that differs from the rest in its face.
struct TextRun {
  std::string Text;
  bool IsBold = false;
  Ink Color = Ink::Text;
};

/// A text broken into lines, ready to be drawn as often as need be. Copies share it; it must not outlive its canvas.
class LaidText {
 public:
  double Width() const { return width_; }
  double Height() const { return height_; }
  double Baseline() const { return baseline_; }  ///< of the first line, from the top
  int Lines() const { return lines_; }

 private:
  friend class PdfCanvas;
  std::shared_ptr<void> layout_;
  double width_ = 0;
  double height_ = 0;
  double baseline_ = 0;
  int lines_ = 0;
  Ink color_ = Ink::Text;
};

/// A PDF document in the making, in memory. All measures are points from the page's upper left corner. The texts can be
/// selected and searched, also letters that no font has, which print as empty boxes; fonts are embedded. A text is
/// UTF-8.
class PdfCanvas {
 public:
  /// Null if this computer can't make one.
  static std::unique_ptr<PdfCanvas> Make(double width, double height, const std::string& title,
                                         const std::string& author);
  ~PdfCanvas();
  PdfCanvas(const PdfCanvas&) = delete;
  PdfCanvas& operator=(const PdfCanvas&) = delete;

  double Width() const { return width_; }
  double Height() const { return height_; }

  /// Breaks a text into lines of a width, words that are longer too; in one line if the width is 0. Short texts are
  /// kept for when they come again.
  LaidText Lay(std::string_view text, const TextStyle& style, double width = 0) const;
  LaidText Lay(std::span<const TextRun> runs, const TextStyle& style, double width = 0) const;
  /// In one line, of a smaller size if one down to `smallest` brings it there; else in lines of its own size.
  LaidText LayFitting(std::string_view text, TextStyle style, double smallest, double width) const;

  void Draw(const LaidText& text, double x, double y);  ///< its upper left corner
  /// One of its lines, from 0.
  void DrawLine(const LaidText& text, int line, double x, double y);
  double LineHeight(const LaidText& text, int line) const;

  void Line(double x1, double y1, double x2, double y2, Ink ink, double weight = 0.5);
  void Box(double x, double y, double width, double height, Ink ink = Ink::Edge, double weight = 0.5);
  /// Squares in a row, `offsets` from x.
  void Squares(double x, double y, double size, std::span<const double> offsets);
  void Fill(double x, double y, double width, double height, Ink ink);

  /// Ends a page and begins the next.
  void NextPage();

  /// Ends the document. Its bytes; none if anything went wrong.
  std::string Finish();

 private:
  struct Tools;
  explicit PdfCanvas(std::unique_ptr<Tools> tools, double width, double height);

  std::unique_ptr<Tools> tools_;
  double width_;
  double height_;
};

}  // namespace veld
