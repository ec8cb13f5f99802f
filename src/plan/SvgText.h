#pragma once

#include "plan/Lettering.h"
#include "plan/Track.h"

#include <string>
#include <string_view>

namespace vantorel::plan {

/// From metres on the ground to pixels on the sheet.
struct Sheet {
  double pixelsPerMetre = 1;
  Point origin{};  ///< where the ground's (0, 0) lies
  Point operator()(Point ground) const { return origin + ground * pixelsPerMetre; }
  Polygon operator()(Polygon ground) const;
};

/// The value of a path's attribute d.
class Path {
 public:
  explicit Path(Sheet sheet = {}) : sheet_(sheet) {}

  Path &move(Point to);
  Path &line(Point to);
  /// Less than half a circle; clockwise as the sheet shows it.
  Path &arc(double radius, bool isClockwise, Point to);
  Path &close();
  Path &polygon(const Polygon &corners);
  Path &segment(Point from, Point to) { return move(from).line(to); }
  Path &circle(Point centre, double radius);
  /// An ellipse around a centre, with its two half axes.
  Path &ellipse(Point centre, Point right, Point front);
  /// Along a wall at a depth; `isOn` goes on from where the path is.
  Path &along(const Track &track, double from, double to, double depth, bool isOn = false);
  /// All walls of a path have the same direction, so that overlaps stay filled.
  Path &band(const Band &band);

  const std::string &text() const { return text_; }
  bool isEmpty() const { return text_.empty(); }

 private:
  Path &put(char command, Point point);
  void put(double value);

  Sheet sheet_;
  std::string text_;
};

/// Writes an SVG picture: a style sheet, groups, paths and texts. All text is escaped, and what XML cannot hold
/// becomes U+FFFD.
class SvgText {
 public:
  void beginGroup(std::string_view name);
  void endGroup();
  /// Nothing for an empty path.
  void path(std::string_view style, const Path &path);
  void line(std::string_view style, Point from, Point to);
  void rectangle(std::string_view style, const Box &box);
  /// Each line a text element; `textLength` keeps to the label's box whatever the font.
  void label(std::string_view style, const Label &label);

  /// The whole picture, of so many pixels.
  std::string finished(double width, double height, std::string_view title) &&;

 private:
  std::string text_;
};

}  // namespace vantorel::plan
