// What a walk can do: every exported function, and everything the device can be told.
#pragma once

#include "walk/Model.h"

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace vantorel::walk {

/// The same on every machine.
class Dice {
 public:
  explicit Dice(std::uint64_t seed) : engine_(seed) {}
  std::size_t below(std::size_t count) { return static_cast<std::size_t>(engine_() % count); }
  bool oneIn(std::size_t count) { return below(count) == 0; }
  template <typename List>
  const auto &of(const List &list) {
    return *(std::begin(list) + static_cast<std::ptrdiff_t>(below(std::size(list))));
  }

 private:
  std::mt19937_64 engine_;
};

struct Step {
  std::size_t operation = 0;
  std::string a{}, b{}, c{};  ///< arguments
  int number = 0;
};

struct Operation {
  const char *name;
  void (*draw)(Step &, Dice &);          ///< chooses the arguments
  void (*library)(const Step &);         ///< on the real thing
  void (*model)(Model &, const Step &);  ///< on the model
  bool dependsOnPresence = false;        ///< what it does depends on isPresent
  int weight = 1;                        ///< each time counts as so many: for what is slow, or simple
};

const std::vector<Operation> &operations();
/// The place of the operation of that name.
std::size_t operationNamed(std::string_view name);
/// As "stopMap '/documents/'".
std::string toText(const Step &step);

}  // namespace vantorel::walk
