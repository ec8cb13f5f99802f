// A room of every kind of element, compact and sorted, for tests that change a little of it.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace vantorel::testing {

inline constexpr std::string_view kRoomText =
    R"({"coreModel":"QUJD\/w==","doors":[{"category":{"door":{"isOpen":true}},"completedEdges":[],)"
    R"("confidence":{"medium":{}},"curve":null,"dimensions":[0.9,2.1,0],)"
    R"("identifier":"0D000000-0000-4000-8000-000000000001",)"
    R"("parentIdentifier":"0A000000-0000-4000-8000-000000000001","polygonCorners":[],"story":0,)"
    R"("transform":[1,0,0,0,0,1,0,0,0,0,1,0,-0.5,0,2,1]}],"floors":[],"objects":[{"attributes":{"ChairType":"stool"},)"
    R"("category":{"chair":{}},"confidence":{"low":{}},"dimensions":[0.5,0.8,0.5],)"
    R"("identifier":"0B000000-0000-4000-8000-000000000001","parentIdentifier":null,"story":0,)"
    R"("transform":[1,0,0,0,0,1,0,0,0,0,1,0,0.25,-0.6,1,1]}],"openings":[],"sections":[{"center":[0,0,1],)"
    R"("label":"kitchen","story":0}],"story":0,"version":2,"walls":[{"category":{"wall":{}},"completedEdges":[],)"
    R"("confidence":{"high":{}},"curve":null,"dimensions":[4,2.5,0],)"
    R"("identifier":"0A000000-0000-4000-8000-000000000001","parentIdentifier":null,"polygonCorners":[],"story":0,)"
    R"("transform":[1,0,0,0,0,1,0,0,0,0,1,0,0,0.25,2,1]}],"windows":[]})";

/// kRoomText with the first occurrence of a piece replaced.
inline std::string roomTextWith(std::string_view piece, std::string_view replacement) {
  std::string text(kRoomText);
  auto at = text.find(piece);
  if (at == std::string::npos) throw std::logic_error("not in the room: " + std::string(piece));
  return text.replace(at, piece.size(), replacement);
}

}  // namespace vantorel::testing
