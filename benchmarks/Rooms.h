#pragma once

#include <string>
#include <vector>

namespace vantorel::benchmarks {

struct Room {
  std::string name, text;
};

/// The rooms of the folder named by the environment variable VANTOREL_ROOMS, else the real scans beside the
/// project, else the samples.
std::vector<Room> rooms();

}  // namespace vantorel::benchmarks
