#include "sheets/xml_writer.h"

#include <algorithm>
#include <charconv>
#include <iterator>

#include "text/utf8.h"

namespace veld {

std::string EscapeXml(std::string_view text) {
  const auto isControl = [](char c) {
    const auto byte = static_cast<unsigned char>(c);
    return (byte < 0x20 && c != '\t' && c != '\n' && c != '\r') || byte == 0x7F;
  };
  std::string kept;
  std::ranges::remove_copy_if(text, std::back_inserter(kept), isControl);
  const std::string shown = DisplayText(kept);
  std::string escaped;
  escaped.reserve(shown.size());
  for (std::size_t i = 0; i < shown.size(); ++i) {
    switch (shown[i]) {
      case '&':
        escaped += "&amp;";
        break;
      case '<':
        escaped += "&lt;";
        break;
      case '>':
        escaped += "&gt;";
        break;
      case '"':
        escaped += "&quot;";
        break;
      case '\'':
        escaped += "&apos;";
        break;
      case '\xEF':
        // U+FFFE and U+FFFF are well-formed UTF-8 and yet in no document.
        if (shown.compare(i, 3, "\xEF\xBF\xBE") == 0 || shown.compare(i, 3, "\xEF\xBF\xBF") == 0) {
          i += 2;
          break;
        }
        [[fallthrough]];
      default:
        escaped += shown[i];
    }
  }
  return escaped;
}

XmlWriter::Element XmlWriter::Open(std::string_view name, std::string_view attribute, std::string_view value) {
  OpenTag(name, attribute, value);
  text_ += '\n';
  return Element(*this, std::string(name));
}

void XmlWriter::Leaf(std::string_view name, std::string_view text) {
  RawLeaf(name, EscapeXml(text));
}

void XmlWriter::Leaf(std::string_view name, int number) {
  char digits[16];
  const auto end = std::to_chars(std::begin(digits), std::end(digits), number).ptr;
  RawLeaf(name, {digits, end});
}

void XmlWriter::Leaf(std::string_view name, std::string_view attribute, std::string_view value, std::string_view text) {
  OpenTag(name, attribute, value);
  EndLeaf(name, EscapeXml(text));
}

void XmlWriter::RawLeaf(std::string_view name, std::string_view markup) {
  OpenTag(name, {}, {});
  EndLeaf(name, markup);
}

void XmlWriter::OpenTag(std::string_view name, std::string_view attribute, std::string_view value) {
  (text_ += '<') += name;
  if (!attribute.empty()) ((((text_ += ' ') += attribute) += "=\"") += value) += '"';
  text_ += '>';
}

void XmlWriter::EndLeaf(std::string_view name, std::string_view markup) {
  const std::string_view between = isSpread_ ? "\n" : "";
  (((((text_ += between) += markup) += between) += "</") += name) += ">\n";
}

}  // namespace veld
