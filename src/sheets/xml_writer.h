#pragma once

#include <string>
#include <string_view>

namespace veld {

/// A text as it may stand in an XML document: the five characters that mean something there as entities, Latin-1 of old
/// files as UTF-8, and without the control characters and the two codes that no document may hold.
std::string EscapeXml(std::string_view text);

/// An XML document in the making, without indentation. Names of elements and attributes, and the values of attributes,
/// are the program's own and go in as they stand; texts are escaped.
class XmlWriter {
 public:
  /// An element that was opened; it is closed where this goes out of scope.
  class Element {
   public:
    Element(XmlWriter& xml, std::string name) : xml_(xml), name_(std::move(name)) {}
    ~Element() { xml_.text_ += "</" + name_ + ">\n"; }
    Element(const Element&) = delete;
    Element& operator=(const Element&) = delete;

   private:
    XmlWriter& xml_;
    std::string name_;
  };

  [[nodiscard]] Element Open(std::string_view name, std::string_view attribute = {}, std::string_view value = {});

  /// An element with nothing but a text; an empty one is written all the same.
  void Leaf(std::string_view name, std::string_view text);
  void Leaf(std::string_view name, int number);
  void Leaf(std::string_view name, std::string_view attribute, std::string_view value, std::string_view text);
  /// The text goes in as it stands.
  void RawLeaf(std::string_view name, std::string_view markup);

  /// Whether a leaf's tags and its text stand on a line each, or all on one.
  void SetSpread(bool isSpread) { isSpread_ = isSpread; }

  void Line(std::string_view line) { (text_ += line) += '\n'; }
  std::string Take() { return std::move(text_); }

 private:
  void OpenTag(std::string_view name, std::string_view attribute, std::string_view value);
  void EndLeaf(std::string_view name, std::string_view markup);

  std::string text_;
  bool isSpread_ = false;
};

}  // namespace veld
