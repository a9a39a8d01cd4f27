#include "print/pdf_canvas.h"

#include <algorithm>
#include <map>
#include <tuple>

#include "print/drawing_library.h"
#include "text/utf8.h"

namespace veld {

namespace {

/// Faces of one cut, the first that is installed; other scripts come from whatever font has them.
constexpr char kFamilies[] = "Liberation Sans,Arimo,Nimbus Sans,DejaVu Sans,sans-serif";

/// The values of the windows' paper, but for the edges: those are dark enough to come through in a grey copy.
constexpr unsigned kInkColors[] = {0x1f2126, 0x1c3d86, 0x6b7a99, 0xdfe8f7};

/// A part of a colour: `shift` 16 is the red, 8 the green, 0 the blue.
unsigned Part(Ink ink, unsigned shift) {
  return (kInkColors[static_cast<std::size_t>(ink)] >> shift) & 0xFFU;
}

double Points(int units) {
  return static_cast<double>(units) / PANGO_SCALE;
}

int Units(double points) {
  return static_cast<int>(points * PANGO_SCALE);
}

/// A text without the codes that are no characters: Cairo gives up a document that holds one.
std::string Drawable(std::string_view text) {
  constexpr std::string_view kStandIn = "\uFFFD";
  const bool mayHoldThem = std::ranges::any_of(text, [](char c) { return static_cast<unsigned char>(c) >= 0xEF; });
  if (!mayHoldThem && IsUtf8(text)) return std::string(text);
  std::string drawn;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t start = at;
    const char32_t c = TakeCharacter(text, at);
    const bool isNone = (c >= 0xFDD0 && c <= 0xFDEF) || (c & 0xFFFE) == 0xFFFE || (c >= 0x80 && at == start + 1);
    drawn += isNone ? kStandIn : text.substr(start, at - start);
  }
  return drawn;
}

cairo_status_t Append(void* bytes, const unsigned char* data, unsigned length) {
  static_cast<std::string*>(bytes)->append(reinterpret_cast<const char*>(data), length);
  return CAIRO_STATUS_SUCCESS;
}

/// No ligatures, which not every reader finds again, and no hyphen where a long word is broken.
PangoAttrList* NewAttributes(const DrawingLibrary& library) {
  PangoAttrList* list = library.pango_attr_list_new();
  library.pango_attr_list_insert(list, library.pango_attr_font_features_new("liga 0"));
  library.pango_attr_list_insert(list, library.pango_attr_insert_hyphens_new(FALSE));
  return list;
}

/// Gives letters that no font has the box that the font around them has for such: it is a letter, and what it stands
/// for can be searched. Else boxes with digits would be drawn, and the digits be read for the letter.
void KeepUnknownLetters(const DrawingLibrary& library, PangoLayout* layout) {
  if (library.pango_layout_get_unknown_glyphs_count(layout) == 0) return;
  for (int i = 0; i < library.pango_layout_get_line_count(layout); ++i) {
    for (const GSList* at = library.pango_layout_get_line(layout, i)->runs; at; at = at->next) {
      const auto* run = static_cast<const PangoLayoutRun*>(at->data);
      const auto letters = static_cast<std::size_t>(run->glyphs->num_glyphs);
      for (PangoGlyphInfo& letter : std::span(run->glyphs->glyphs, letters)) {
        if ((letter.glyph & PANGO_GLYPH_UNKNOWN_FLAG) == 0) continue;
        letter.glyph = 0;
        letter.geometry.width =
            library.hb_font_get_glyph_h_advance(library.pango_font_get_hb_font(run->item->analysis.font), 0);
      }
    }
  }
}

}  // namespace

struct PdfCanvas::Tools {
  explicit Tools(const DrawingLibrary& drawing) : Library(drawing) {}
  ~Tools() {
    Kept.clear();
    Library.cairo_destroy(Cairo);
    Library.cairo_surface_destroy(Surface);
    Library.pango_attr_list_unref(Attributes);
    Library.pango_font_description_free(Face);
    Library.g_object_unref(Context);
  }

  void SetInk(Ink ink) const {
    Library.cairo_set_source_rgb(Cairo, Part(ink, 16) / 255.0, Part(ink, 8) / 255.0, Part(ink, 0) / 255.0);
  }

  const DrawingLibrary& Library;
  std::string Bytes;
  cairo_surface_t* Surface = nullptr;
  cairo_t* Cairo = nullptr;
  PangoContext* Context = nullptr;
  PangoFontDescription* Face = nullptr;
  PangoAttrList* Attributes = nullptr;  ///< of every text
  std::map<std::tuple<std::string, double, bool, Ink, Align, double>, LaidText> Kept;
};

PdfCanvas::PdfCanvas(std::unique_ptr<Tools> tools, double width, double height)
    : tools_(std::move(tools)), width_(width), height_(height) {}

PdfCanvas::~PdfCanvas() = default;

std::unique_ptr<PdfCanvas> PdfCanvas::Make(double width, double height, const std::string& title,
                                           const std::string& author) {
  const DrawingLibrary* library = OpenDrawingLibrary();
  if (!library) return nullptr;
  auto tools = std::make_unique<Tools>(*library);
  tools->Surface = library->cairo_pdf_surface_create_for_stream(Append, &tools->Bytes, width, height);
  library->cairo_pdf_surface_set_metadata(tools->Surface, CAIRO_PDF_METADATA_TITLE, Drawable(title).c_str());
  library->cairo_pdf_surface_set_metadata(tools->Surface, CAIRO_PDF_METADATA_AUTHOR, Drawable(author).c_str());
  library->cairo_pdf_surface_set_metadata(tools->Surface, CAIRO_PDF_METADATA_CREATOR, "VELD");
  tools->Cairo = library->cairo_create(tools->Surface);
  static PangoFontMap* const fonts = library->pango_cairo_font_map_new();  // kept: to find them is half the work
  tools->Context = library->pango_font_map_create_context(fonts);
  library->pango_cairo_context_set_resolution(tools->Context, 72);  // a point of type is a point of the page
  library->pango_context_set_round_glyph_positions(tools->Context, FALSE);
  cairo_font_options_t* options = library->cairo_font_options_create();
  library->cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
  library->cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
  library->pango_cairo_context_set_font_options(tools->Context, options);
  library->cairo_font_options_destroy(options);
  tools->Face = library->pango_font_description_new();
  library->pango_font_description_set_family(tools->Face, kFamilies);
  tools->Attributes = NewAttributes(*library);
  return std::unique_ptr<PdfCanvas>(new PdfCanvas(std::move(tools), width, height));
}

LaidText PdfCanvas::Lay(std::string_view text, const TextStyle& style, double width) const {
  constexpr std::size_t kShort = 60;
  const TextRun whole{std::string(text), style.IsBold, style.Color};
  if (text.empty()) return {};
  if (text.size() > kShort) return Lay(std::span(&whole, 1), style, width);
  const auto key = std::tuple(whole.Text, style.Size, style.IsBold, style.Color, style.Side, width);
  const auto [kept, isNew] = tools_->Kept.try_emplace(key);
  if (isNew) kept->second = Lay(std::span(&whole, 1), style, width);
  return kept->second;
}

LaidText PdfCanvas::Lay(std::span<const TextRun> runs, const TextStyle& style, double width) const {
  const DrawingLibrary& library = tools_->Library;
  PangoLayout* layout = library.pango_layout_new(tools_->Context);
  LaidText laid;
  laid.layout_ = std::shared_ptr<void>(layout, library.g_object_unref);
  laid.color_ = style.Color;
  library.pango_font_description_set_absolute_size(tools_->Face, Units(style.Size));
  library.pango_font_description_set_weight(tools_->Face, style.IsBold ? PANGO_WEIGHT_BOLD : PANGO_WEIGHT_NORMAL);
  library.pango_layout_set_font_description(layout, tools_->Face);
  if (runs.size() == 1) {
    library.pango_layout_set_attributes(layout, tools_->Attributes);
    const std::string text = Drawable(runs[0].Text);
    library.pango_layout_set_text(layout, text.data(), static_cast<int>(text.size()));
  } else {
    PangoAttrList* list = NewAttributes(library);
    std::string text;
    for (const TextRun& run : runs) {
      const std::size_t start = text.size();
      text += Drawable(run.Text);
      const auto insert = [&](PangoAttribute* attribute) {
        attribute->start_index = static_cast<guint>(start);
        attribute->end_index = static_cast<guint>(text.size());
        library.pango_attr_list_insert(list, attribute);
      };
      const auto part = [&](unsigned shift) { return static_cast<guint16>(Part(run.Color, shift) * 0x101); };
      insert(library.pango_attr_foreground_new(part(16), part(8), part(0)));
      insert(library.pango_attr_weight_new(run.IsBold ? PANGO_WEIGHT_BOLD : PANGO_WEIGHT_NORMAL));
    }
    library.pango_layout_set_attributes(layout, list);
    library.pango_attr_list_unref(list);
    library.pango_layout_set_text(layout, text.data(), static_cast<int>(text.size()));
  }
  if (width > 0) {
    constexpr PangoAlignment kSides[] = {PANGO_ALIGN_LEFT, PANGO_ALIGN_CENTER, PANGO_ALIGN_RIGHT};
    library.pango_layout_set_wrap(layout, PANGO_WRAP_WORD_CHAR);
    library.pango_layout_set_width(layout, Units(width));
    library.pango_layout_set_alignment(layout, kSides[static_cast<std::size_t>(style.Side)]);
  }
  KeepUnknownLetters(library, layout);
  int wide = 0;
  int high = 0;
  library.pango_layout_get_size(layout, &wide, &high);
  laid.width_ = Points(wide);
  laid.height_ = Points(high);
  laid.baseline_ = Points(library.pango_layout_get_baseline(layout));
  laid.lines_ = library.pango_layout_get_line_count(layout);
  return laid;
}

LaidText PdfCanvas::LayFitting(std::string_view text, TextStyle style, double smallest, double width) const {
  LaidText laid = Lay(text, style, width);
  if (laid.Lines() < 2) return laid;
  const double fitting = style.Size * width / std::max(Lay(text, style).Width(), width) * 0.99;
  if (fitting < smallest) return laid;
  style.Size = fitting;
  return Lay(text, style, width);
}

void PdfCanvas::Draw(const LaidText& text, double x, double y) {
  if (!text.layout_) return;
  tools_->SetInk(text.color_);
  tools_->Library.cairo_move_to(tools_->Cairo, x, y);
  tools_->Library.pango_cairo_show_layout(tools_->Cairo, static_cast<PangoLayout*>(text.layout_.get()));
}

double PdfCanvas::LineHeight(const LaidText& text, int line) const {
  PangoRectangle box{};
  auto* layout = static_cast<PangoLayout*>(text.layout_.get());
  tools_->Library.pango_layout_line_get_extents(tools_->Library.pango_layout_get_line_readonly(layout, line), nullptr,
                                                &box);
  return Points(box.height);
}

void PdfCanvas::DrawLine(const LaidText& text, int line, double x, double y) {
  const DrawingLibrary& library = tools_->Library;
  PangoLayoutLine* drawn = library.pango_layout_get_line_readonly(static_cast<PangoLayout*>(text.layout_.get()), line);
  PangoRectangle box{};
  library.pango_layout_line_get_extents(drawn, nullptr, &box);
  tools_->SetInk(text.color_);
  library.cairo_move_to(tools_->Cairo, x, y - Points(box.y));
  library.pango_cairo_show_layout_line(tools_->Cairo, drawn);
}

void PdfCanvas::Line(double x1, double y1, double x2, double y2, Ink ink, double weight) {
  const DrawingLibrary& library = tools_->Library;
  tools_->SetInk(ink);
  library.cairo_set_line_width(tools_->Cairo, weight);
  library.cairo_move_to(tools_->Cairo, x1, y1);
  library.cairo_line_to(tools_->Cairo, x2, y2);
  library.cairo_stroke(tools_->Cairo);
}

void PdfCanvas::Box(double x, double y, double width, double height, Ink ink, double weight) {
  tools_->SetInk(ink);
  tools_->Library.cairo_set_line_width(tools_->Cairo, weight);
  tools_->Library.cairo_rectangle(tools_->Cairo, x, y, width, height);
  tools_->Library.cairo_stroke(tools_->Cairo);
}

void PdfCanvas::Squares(double x, double y, double size, std::span<const double> offsets) {
  tools_->SetInk(Ink::Edge);
  tools_->Library.cairo_set_line_width(tools_->Cairo, 0.5);
  for (const double offset : offsets) tools_->Library.cairo_rectangle(tools_->Cairo, x + offset, y, size, size);
  tools_->Library.cairo_stroke(tools_->Cairo);
}

void PdfCanvas::Fill(double x, double y, double width, double height, Ink ink) {
  tools_->SetInk(ink);
  tools_->Library.cairo_rectangle(tools_->Cairo, x, y, width, height);
  tools_->Library.cairo_fill(tools_->Cairo);
}

void PdfCanvas::NextPage() {
  tools_->Library.cairo_show_page(tools_->Cairo);
}

std::string PdfCanvas::Finish() {
  const DrawingLibrary& library = tools_->Library;
  library.cairo_show_page(tools_->Cairo);
  const bool isDrawn = library.cairo_status(tools_->Cairo) == CAIRO_STATUS_SUCCESS;
  library.cairo_surface_finish(tools_->Surface);
  const bool isWhole = isDrawn && library.cairo_surface_status(tools_->Surface) == CAIRO_STATUS_SUCCESS;
  return isWhole ? std::move(tools_->Bytes) : std::string{};
}

}  // namespace veld
