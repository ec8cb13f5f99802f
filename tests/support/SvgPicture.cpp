#include "support/SvgPicture.h"

#include "base/Utf8.h"

#include <cmath>
#include <map>
#include <sstream>
#include <stdexcept>

namespace vantorel::testing {
namespace {

using plan::Box;
using plan::Point;
using plan::Polygon;

void require(bool condition, const std::string &what) {
  if (!condition) throw std::runtime_error("not an SVG picture: " + what);
}

double numberIn(const std::string &text) {
  std::size_t end = 0;
  const double value = std::stod(text, &end);
  require(std::isfinite(value), "the number " + text);
  return value;
}

struct Element {
  std::string name;
  std::map<std::string, std::string> attributes{};
  std::string text{};
  double number(const std::string &attribute) const {
    require(attributes.contains(attribute), name + " lacks " + attribute);
    return numberIn(attributes.at(attribute));
  }
};

/// As much of XML as the pictures use; anything else is refused.
class Xml {
 public:
  explicit Xml(std::string_view text) : rest_(text) {
    require(repairedUtf8(text) == text, "not UTF-8");
    for (const char c : text)
      require(static_cast<unsigned char>(c) >= 0x20 || c == '\n', "a control character");
    require(text.starts_with("<svg ") && text.ends_with("</svg>\n"), "no svg element");
    rest_.remove_suffix(1);
    while (!rest_.empty()) readPiece();
    require(open_.empty(), "elements stay open");
  }
  std::vector<Element> elements;

 private:
  void readPiece() {
    if (rest_[0] != '<') return readText();
    const std::size_t end = rest_.find('>');
    require(end != rest_.npos, "an open tag");
    std::string_view tag = rest_.substr(1, end - 1);
    rest_.remove_prefix(end + 1);
    if (tag.starts_with('/')) {
      require(!open_.empty() && elements[open_.back()].name == tag.substr(1), "a wrong end tag");
      return open_.pop_back();
    }
    const bool isEmpty = tag.ends_with('/');
    if (isEmpty) tag.remove_suffix(1);
    elements.push_back({std::string(tag.substr(0, tag.find(' ')))});
    if (tag.find(' ') != tag.npos) readAttributes(tag.substr(tag.find(' ')));
    if (!isEmpty) open_.push_back(elements.size() - 1);
  }

  void readAttributes(std::string_view text) {
    while (!text.empty()) {
      const std::size_t equals = text.find("=\""), end = text.find('"', equals + 2);
      require(text[0] == ' ' && equals != text.npos && end != text.npos, "a bad attribute");
      const bool isNew =
          elements.back()
              .attributes
              .emplace(text.substr(1, equals - 1), unescaped(text.substr(equals + 2, end - equals - 2)))
              .second;
      require(isNew, "an attribute twice");
      text.remove_prefix(end + 1);
    }
  }

  void readText() {
    require(!open_.empty(), "text outside of elements");
    const std::string_view text = rest_.substr(0, rest_.find('<'));
    elements[open_.back()].text += unescaped(text);
    rest_.remove_prefix(text.size());
  }

  static std::string unescaped(std::string_view text) {
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
      require(text[i] != '<' && text[i] != '>', "a bare angle bracket");
      if (text[i] != '&') {
        out += text[i];
        continue;
      }
      const std::size_t end = text.find(';', i);
      require(end != text.npos, "a bare &");
      const std::map<std::string_view, char> entities{{"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}};
      const auto entity = entities.find(text.substr(i + 1, end - i - 1));
      require(entity != entities.end(), "an unknown entity");
      out += entity->second;
      i = end;
    }
    return out;
  }

  std::string_view rest_;
  std::vector<std::size_t> open_;
};

Box boxOf(const Element &text) {
  const double x = text.number("x"), y = text.number("y"), size = text.number("font-size");
  const double half = text.number("textLength") / 2, up = 0.78 * size, down = 0.24 * size;
  if (!text.attributes.contains("transform")) return {{x - half, y - up}, {x + half, y + down}};
  const std::string &turn = text.attributes.at("transform");
  require(turn == "rotate(-90 " + text.attributes.at("x") + ' ' + text.attributes.at("y") + ')',
          "the turn " + turn);
  return {{x - up, y - half}, {x + down, y + half}};
}

/// The chords of an arc of less than half a circle.
void addArc(Polygon &polygon, double radius, bool isClockwise, Point to) {
  const Point from = polygon.back(), half = (to - from) * 0.5;
  const double away = std::sqrt(std::max(radius * radius - dot(half, half), 0.0));
  const Point centre = from + half + unit(turned(half)) * (isClockwise ? away : -away);
  constexpr int kSteps = 16;
  for (int i = 1; i <= kSteps; ++i) {
    const double part = static_cast<double>(i) / kSteps;
    polygon.push_back(centre + unit((from - centre) * (1 - part) + (to - centre) * part) * radius);
  }
}

std::vector<Polygon> polygonsOf(const std::string &path) {
  std::string spaced;
  for (const char c : path) spaced += (c >= 'A' && c <= 'Z') ? std::string{' ', c, ' '} : std::string(1, c);
  std::istringstream words(spaced);
  std::vector<Polygon> polygons;
  const auto number = [&words] {
    std::string word;
    words >> word;
    return numberIn(word);
  };
  for (std::string command; words >> command;) {
    if (command == "Z") continue;
    if (command == "M") polygons.emplace_back();
    double radius = 0, clockwise = 0;
    if (command == "A") {
      radius = number();
      for (int i = 0; i < 3; ++i) number();
      clockwise = number();
    }
    const double x = number();
    const Point to{x, number()};
    command == "A" ? addArc(polygons.back(), radius, clockwise != 0, to) : polygons.back().push_back(to);
  }
  return polygons;
}

}  // namespace

SvgPicture readSvg(std::string_view svg) {
  SvgPicture picture;
  for (const Element &element : Xml(svg).elements) {
    const auto style = element.attributes.find("class");
    if (element.name == "text") picture.texts.push_back({style->second, element.text, boxOf(element)});
    if (element.name != "path") continue;
    const std::vector<Polygon> polygons = style->second == "walls" || style->second == "paper"
                                              ? polygonsOf(element.attributes.at("d"))
                                              : std::vector<Polygon>{};
    if (style->second == "walls") picture.walls.insert(picture.walls.end(), polygons.begin(), polygons.end());
    if (style->second == "paper") picture.sheet.add(polygons.at(0));
  }
  return picture;
}

std::string labelFaults(const SvgPicture &picture) {
  constexpr double kRounding = 0.02;  // places have two decimals
  std::string faults;
  for (std::size_t i = 0; i < picture.texts.size(); ++i) {
    const auto &[style, text, box] = picture.texts[i];
    const Box inner = box.grown(-kRounding);
    for (std::size_t k = 0; k < i; ++k)
      if (inner.meets(picture.texts[k].box.grown(-kRounding)))
        faults += text + " is over " + picture.texts[k].text + '\n';
    for (const Polygon &wall : picture.walls)
      if (meets(wall, inner)) faults += text + " is over a wall\n";
    for (const Point corner : box.corners())
      if (!Box{corner, corner}.grown(0.01).meets(picture.sheet)) faults += text + " leaves the sheet\n";
  }
  return faults;
}

}  // namespace vantorel::testing
