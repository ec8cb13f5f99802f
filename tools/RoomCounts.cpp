#include "RoomCounts.h"

namespace vantorel {

std::array<RoomCount, 7> countsOf(const RoomDocument &room) {
  return {{{"wall", "walls", room.walls.size()},
           {"door", "doors", room.doors.size()},
           {"window", "windows", room.windows.size()},
           {"opening", "openings", room.openings.size()},
           {"floor", "floors", room.floors ? room.floors->size() : 0},
           {"object", "objects", room.objects.size()},
           {"section", "sections", room.sections ? room.sections->size() : 0}}};
}

std::string counted(const RoomCount &count) {
  return std::to_string(count.number) + ' ' + std::string(count.number == 1 ? count.one : count.several);
}

std::string shortCounts(const RoomDocument &room) {
  std::string text;
  for (const RoomCount &count : countsOf(room))
    if (count.number > 0) text += counted(count) + ", ";
  return text;
}

}  // namespace vantorel
