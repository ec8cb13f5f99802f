#include "MeshFacts.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <map>

namespace vantorel::testing {
namespace {

using Vector = std::array<double, 3>;

Vector operator-(const Vector &a, const Vector &b) { return {a[0] - b[0], a[1] - b[1], a[2] - b[2]}; }
double dot(const Vector &a, const Vector &b) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }
Vector cross(const Vector &a, const Vector &b) {
  return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

/// Three numbers for each point, each normal and each triangle.
struct Arrays {
  std::vector<double> points, normals, triangles;
};

Vector tripleAt(const std::vector<double> &numbers, std::size_t index) {
  return {numbers.at(3 * index), numbers.at(3 * index + 1), numbers.at(3 * index + 2)};
}

Arrays arraysOf(const Mesh &mesh) {
  Arrays arrays;
  for (const MicroPoint &point : mesh.points)
    for (std::int32_t length : {point.x, point.y, point.z})
      arrays.points.push_back(static_cast<float>(length / 1e6));
  for (const auto &[n, size] : mesh.patches)
    for (std::size_t i = 0; i < size; ++i) arrays.normals.insert(arrays.normals.end(), {n.x, n.y, n.z});
  for (const auto &triangle : mesh.triangles)
    arrays.triangles.insert(arrays.triangles.end(), triangle.begin(), triangle.end());
  return arrays;
}

/// The numbers of the first array that starts with `declaration` after `from`, which moves behind it.
std::vector<double> numbersAfter(const std::string &text, std::string_view declaration, std::size_t &from) {
  std::vector<double> numbers;
  from = text.find(declaration, from);
  if (from == std::string::npos) return numbers;
  const std::size_t end = text.find(']', from += declaration.size());
  while ((from = text.find_first_of("-0123456789", from)) < end) {
    char *rest = nullptr;
    numbers.push_back(std::strtof(text.c_str() + from, &rest));
    from = static_cast<std::size_t>(rest - text.c_str());
  }
  return numbers;
}

MeshFacts factsOf(const Arrays &arrays) {
  MeshFacts facts;
  std::map<std::pair<Vector, Vector>, int> uses;
  if (arrays.normals.size() != arrays.points.size()) facts.fault = "not one normal for each point";
  if (arrays.triangles.empty()) facts.fault = "no triangle";
  for (std::size_t t = 0; t < arrays.triangles.size() / 3; ++t) {
    std::array<Vector, 3> corners, normals;
    for (std::size_t i = 0; i < 3; ++i) {
      const auto index = static_cast<std::size_t>(arrays.triangles[3 * t + i]);
      corners[i] = tripleAt(arrays.points, index);
      normals[i] = tripleAt(arrays.normals, index);
    }
    for (std::size_t i = 0; i < 3; ++i) ++uses[{corners[i], corners[(i + 1) % 3]}];
    const Vector across = cross(corners[1] - corners[0], corners[2] - corners[0]);
    const double size = std::sqrt(dot(across, across));
    if (!(size > 0)) facts.fault = "a face without area";
    facts.volume += dot(corners[0], across) / 6;
    facts.area += size / 2;
    if (across[2] > 0.999 * size) facts.frontArea += size / 2;
    if (across[2] < -0.999 * size) facts.backArea += size / 2;
    // Far out, 32 bits turn a face that is thinner than a millimetre.
    double longest = 0;
    for (std::size_t i = 0; i < 3; ++i) {
      const Vector side = corners[(i + 1) % 3] - corners[i];
      longest = std::max(longest, std::sqrt(dot(side, side)));
    }
    if (size < 1e-3 * longest) continue;
    for (const Vector &normal : normals)
      if (std::abs(dot(normal, normal) - 1) > 1e-6 || dot(normal, across) < (1 - 1e-4) * size)
        facts.fault = "a normal that is not its face's";
  }
  for (const auto &[edge, count] : uses)
    if (count != 1 || !uses.contains({edge.second, edge.first}))
      facts.fault = "an edge without its two faces";
  return facts;
}

}  // namespace

MeshFacts factsOf(const Mesh &mesh) { return factsOf(arraysOf(mesh)); }

std::vector<MeshFacts> factsOfPackage(std::string_view package) {
  const std::string text(package);
  std::vector<MeshFacts> facts;
  for (std::size_t at = text.find("def Mesh "); at != std::string::npos; at = text.find("def Mesh ", at)) {
    Arrays arrays;
    arrays.triangles = numbersAfter(text, "faceVertexIndices = [", at);
    arrays.normals = numbersAfter(text, "normals = [", at);
    arrays.points = numbersAfter(text, "points = [", at);
    facts.push_back(factsOf(arrays));
  }
  return facts;
}

}  // namespace vantorel::testing
