#pragma once

#include <cairo-pdf.h>
#include <hb.h>
#include <pango/pangocairo.h>

namespace veld {

// Cairo and Pango, opened when the first page is drawn and not before: a program that prints nothing doesn't pay for
// them at its start, and one that runs where they are missing lacks the PDF sheet and nothing else.

// clang-format off
#define VELD_DRAWING_CALLS(CALL)            \
  CALL(cairo_create)                        \
  CALL(cairo_destroy)                       \
  CALL(cairo_fill)                          \
  CALL(cairo_font_options_create)           \
  CALL(cairo_font_options_destroy)          \
  CALL(cairo_font_options_set_hint_metrics) \
  CALL(cairo_font_options_set_hint_style)   \
  CALL(cairo_line_to)                       \
  CALL(cairo_move_to)                       \
  CALL(cairo_pdf_surface_create_for_stream) \
  CALL(cairo_pdf_surface_set_metadata)      \
  CALL(cairo_rectangle)                     \
  CALL(cairo_set_line_width)                \
  CALL(cairo_set_source_rgb)                \
  CALL(cairo_show_page)                     \
  CALL(cairo_status)                        \
  CALL(cairo_stroke)                        \
  CALL(cairo_surface_destroy)               \
  CALL(cairo_surface_finish)                \
  CALL(cairo_surface_status)                \
  CALL(g_object_unref)                      \
  CALL(hb_font_get_glyph_h_advance)         \
  CALL(pango_attr_font_features_new)        \
  CALL(pango_attr_foreground_new)           \
  CALL(pango_attr_insert_hyphens_new)       \
  CALL(pango_attr_list_insert)              \
  CALL(pango_attr_list_new)                 \
  CALL(pango_attr_list_ref)                 \
  CALL(pango_attr_list_unref)               \
  CALL(pango_attr_weight_new)               \
  CALL(pango_cairo_context_set_font_options) \
  CALL(pango_cairo_context_set_resolution)  \
  CALL(pango_cairo_font_map_new)            \
  CALL(pango_cairo_show_layout)             \
  CALL(pango_cairo_show_layout_line)        \
  CALL(pango_context_set_round_glyph_positions) \
  CALL(pango_font_description_free)         \
  CALL(pango_font_description_new)          \
  CALL(pango_font_description_set_absolute_size) \
  CALL(pango_font_description_set_family)   \
  CALL(pango_font_description_set_weight)   \
  CALL(pango_font_get_hb_font)              \
  CALL(pango_font_map_create_context)       \
  CALL(pango_layout_get_baseline)           \
  CALL(pango_layout_get_line)               \
  CALL(pango_layout_get_line_count)         \
  CALL(pango_layout_get_line_readonly)      \
  CALL(pango_layout_get_size)               \
  CALL(pango_layout_get_unknown_glyphs_count) \
  CALL(pango_layout_line_get_extents)       \
  CALL(pango_layout_new)                    \
  CALL(pango_layout_set_alignment)          \
  CALL(pango_layout_set_attributes)         \
  CALL(pango_layout_set_font_description)   \
  CALL(pango_layout_set_text)               \
  CALL(pango_layout_set_width)              \
  CALL(pango_layout_set_wrap)
// clang-format on

/// The calls that the pages need, each under its own name.
struct DrawingLibrary {
#define VELD_CALL(name) decltype(&::name) name = nullptr;
  VELD_DRAWING_CALLS(VELD_CALL)
#undef VELD_CALL
};

/// The library, opened by the first call; null if this computer hasn't got it.
const DrawingLibrary* OpenDrawingLibrary();

}  // namespace veld
