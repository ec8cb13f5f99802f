#include "plan/SvgText.h"

#include "base/Utf8.h"
#include "plan/Units.h"

#include <algorithm>
#include <numbers>

namespace vantorel::plan {
namespace {

std::string number(double value) {
  std::string text = fixedText(value, 2);
  if (text.find('.') == text.npos) return text;
  while (text.back() == '0') text.pop_back();
  if (text.back() == '.') text.pop_back();
  return text == "-0" ? "0" : text;
}

std::string escaped(std::string_view text) {
  std::string out;
  for (const char c : repairedUtf8(text)) {
    if (c == '&')
      out += "&amp;";
    else if (c == '<')
      out += "&lt;";
    else if (c == '>')
      out += "&gt;";
    else if (c == '"')
      out += "&quot;";
    else if (static_cast<unsigned char>(c) < 0x20)
      out += "\xEF\xBF\xBD";
    else
      out += c;
  }
  for (const std::string_view never : {"\xEF\xBF\xBE", "\xEF\xBF\xBF"})  // U+FFFE and U+FFFF
    for (auto at = out.find(never); at != out.npos; at = out.find(never)) out.replace(at, 3, "\xEF\xBF\xBD");
  return out;
}

std::string attribute(std::string_view name, std::string_view value) {
  return ' ' + std::string(name) + "=\"" + escaped(value) + '"';
}

constexpr std::string_view kStyleSheet = R"(
  .paper { fill: #ffffff }
  .floor { fill: #f6f1e7 }
  .walls { fill: #2b3038 }
  .gap { fill: #f6f1e7 }
  .furniture { fill: #ffffff; stroke: #8b939d; stroke-width: 1; stroke-linejoin: round }
  .detail { fill: none; stroke: #b3bac2; stroke-width: 0.8; stroke-linecap: round }
  .frame { fill: #ffffff; stroke: #2b3038; stroke-width: 1 }
  .glass { fill: none; stroke: #2b3038; stroke-width: 0.9 }
  .leaf { fill: #ffffff; stroke: #2b3038; stroke-width: 1.1; stroke-linejoin: round }
  .swing { fill: none; stroke: #6f7782; stroke-width: 0.8 }
  .opening { fill: none; stroke: #6f7782; stroke-width: 0.8; stroke-dasharray: 5 3 }
  .dimension { fill: none; stroke: #5b6b80; stroke-width: 0.7 }
  .tick { fill: none; stroke: #5b6b80; stroke-width: 1.3 }
  .extension { fill: none; stroke: #aab4c0; stroke-width: 0.6 }
  .leader { fill: none; stroke: #8b939d; stroke-width: 0.7 }
  .ink { fill: #2b3038 }
  .edge { fill: none; stroke: #2b3038; stroke-width: 1 }
  text { font-family: Helvetica, Arial, "Liberation Sans", sans-serif; fill: #20242a; text-anchor: middle;
         paint-order: stroke; stroke: #ffffff; stroke-opacity: 0.75; stroke-width: 2.4px; stroke-linejoin: round }
  .measure { fill: #43536a }
  .thing, .legend { fill: #4d545d }
)";

}  // namespace

Polygon Sheet::operator()(Polygon ground) const {
  for (Point &corner : ground) corner = (*this)(corner);
  return ground;
}

Path &Path::move(Point to) { return put('M', to); }
Path &Path::line(Point to) { return put('L', to); }

Path &Path::arc(double radius, bool isClockwise, Point to) {
  text_ += 'A';
  put(radius * sheet_.pixelsPerMetre);
  text_ += ' ';
  put(radius * sheet_.pixelsPerMetre);
  text_ += isClockwise ? " 0 0 1" : " 0 0 0";
  return put(' ', to);
}

Path &Path::close() {
  text_ += 'Z';
  return *this;
}

Path &Path::polygon(const Polygon &corners) {
  for (std::size_t i = 0; i < corners.size(); ++i) i == 0 ? move(corners[i]) : line(corners[i]);
  return close();
}

Path &Path::circle(Point centre, double radius) { return ellipse(centre, {radius, 0}, {0, radius}); }

Path &Path::ellipse(Point centre, Point right, Point front) {
  constexpr double kBezier = 0.5522847498;  // of a quarter of a circle
  move(centre + right);
  Point a = right, b = front;
  for (int quarter = 0; quarter < 4; ++quarter) {
    put('C', centre + a + b * kBezier);
    put(' ', centre + b + a * kBezier);
    put(' ', centre + b);
    const Point next = a * -1;
    a = b, b = next;
  }
  return close();
}

Path &Path::along(const Track &track, double from, double to, double depth, bool isOn) {
  isOn ? line(track.at(from, depth)) : move(track.at(from, depth));
  if (track.isStraight()) return line(track.at(to, depth));
  const double radians = track.radians(from, to), radius = track.radius(depth);
  const double pieces = std::max(std::ceil(std::abs(radians) / (std::numbers::pi / 2)), 1.0);
  for (double i = 1; i <= pieces; ++i)
    arc(std::abs(radius), (radians > 0) == (radius > 0), track.at(from + (to - from) * i / pieces, depth));
  return *this;
}

Path &Path::band(const Band &band) {
  const Point middle = band.track->direction((band.from + band.to) / 2);
  if (cross(middle, band.track->back((band.from + band.to) / 2)) > 0)
    return along(*band.track, band.from, band.to, 0)
        .along(*band.track, band.outerTo, band.outerFrom, band.depth, true)
        .close();
  return along(*band.track, band.to, band.from, 0)
      .along(*band.track, band.outerFrom, band.outerTo, band.depth, true)
      .close();
}

Path &Path::put(char command, Point point) {
  const Point at = sheet_(point);
  text_ += command;
  put(at.x);
  text_ += ' ';
  put(at.y);
  return *this;
}

void Path::put(double value) { text_ += number(value); }

void SvgText::beginGroup(std::string_view name) { text_ += "<g" + attribute("aria-label", name) + ">\n"; }
void SvgText::endGroup() { text_ += "</g>\n"; }

void SvgText::path(std::string_view style, const Path &path) {
  if (!path.isEmpty()) text_ += "<path" + attribute("class", style) + " d=\"" + path.text() + "\"/>\n";
}

void SvgText::line(std::string_view style, Point from, Point to) { path(style, Path().segment(from, to)); }
void SvgText::rectangle(std::string_view style, const Box &box) {
  path(style, Path().polygon(box.corners()));
}

void SvgText::label(std::string_view style, const Label &label) {
  const Point down = label.isUpright ? Point{1, 0} : Point{0, 1};
  Point top = label.centre - down * (label.height() / 2);
  for (const TextLine &line : label.lines) {
    const Point base = top + down * (line.size * Label::kAscent);
    const std::string place = number(base.x) + ' ' + number(base.y);
    text_ +=
        "<text" + attribute("class", style) + attribute("x", number(base.x)) + attribute("y", number(base.y));
    if (label.isUpright) text_ += attribute("transform", "rotate(-90 " + place + ")");
    text_ += attribute("font-size", number(line.size));
    if (line.weight == Weight::bold) text_ += attribute("font-weight", "bold");
    text_ += attribute("textLength", number(line.width())) + attribute("lengthAdjust", "spacingAndGlyphs") +
             '>' + escaped(line.text) + "</text>\n";
    top = top + down * (line.size * (Label::kAscent + Label::kDescent));
  }
}

std::string SvgText::finished(double width, double height, std::string_view title) && {
  constexpr double kMillimetres = 25.4 / kPixelsPerInch;
  const std::string content = std::move(text_);
  text_ = "<svg xmlns=\"http://www.w3.org/2000/svg\"" +
          attribute("width", number(width * kMillimetres) + "mm") +
          attribute("height", number(height * kMillimetres) + "mm") +
          attribute("viewBox", "0 0 " + number(width) + ' ' + number(height)) + " role=\"img\">\n<title>" +
          escaped(title) + "</title>\n<style>" + std::string(kStyleSheet) + "</style>\n";
  rectangle("paper", {{0, 0}, {width, height}});
  return std::move(text_) + content + "</svg>\n";
}

}  // namespace vantorel::plan
