#include "walk/Walk.h"

#include "walk/Library.h"

#include <algorithm>
#include <array>
#include <utility>

namespace vantorel::walk {
namespace {

constexpr std::size_t kEpisodeLength = 300;

Model switchedOn(int ios) {
  Model model;
  model.phone.ios = ios;
  for (const std::string &folder :
       {kDocuments, kDocuments + "/WorldMap", kDocuments + "/deepWorldMap", temporaryFolder()})
    model.phone.createFolder(folder);
  model.phone.files[kDocuments + "/garbage"] = {ModelFile::Kind::text, "no world map"};
  switchOn(model);
  return model;
}

/// Nothing where the library must stop the process, at once or with what it queues.
std::optional<Model> modelAfter(const Model &before, const Step &step) {
  try {
    Model after = before;
    after.heard.clear();
    operations()[step.operation].model(after, step);
    after.releaseSessions();
    if (after.phone.isDue()) Model(after).advance(0);
    return after;
  } catch (const ProcessStops &) {
    return std::nullopt;
  }
}

/// Takes the step on the library; how that differs from the model after it.
std::string differenceAfter(const Step &step, Model &model) {
  operations()[step.operation].library(step);
  return difference(model);
}

Step stepOf(const char *operation, const char *argument = "", int number = 0) {
  return {.operation = operationNamed(operation), .a = argument, .number = number};
}

Step drawn(std::size_t operation, Dice &dice) {
  Step step{.operation = operation};
  operations()[operation].draw(step, dice);
  return step;
}

/// The operation that is wanted most where the model is; if none is, the way to where one is.
Step wantedStep(const Model &model, const Coverage &coverage, Dice &dice) {
  if (dice.oneIn(100)) return drawn(dice.below(operations().size()), dice);
  std::size_t best = dice.below(operations().size());
  for (std::size_t tried = 0, first = best; tried < operations().size(); ++tried) {
    const std::size_t operation = (first + tried) % operations().size();
    if (coverage.missing(model, operation) > coverage.missing(model, best)) best = operation;
  }
  if (coverage.missing(model, best) > 0) return drawn(best, dice);
  return coverage.wayOn(model).value_or(drawn(best, dice));
}

/// Most slots are filled from the start, and most hosts initialise.
std::vector<Step> firstSteps(Dice &dice) {
  std::vector<Step> steps;
  for (const char *slot : kSlots)
    if (!dice.oneIn(5)) steps.push_back(stepOf("callback", slot, 1));
  if (!dice.oneIn(3)) steps.push_back(stepOf("flag", dice.oneIn(2) ? "customXR" : "defaultScan", 1));
  if (!dice.oneIn(3)) steps.insert(steps.end(), {stepOf("initialise"), stepOf("advance")});
  return steps;
}

/// One process; gives the difference.
std::string walkEpisode(Episode &episode, Coverage &coverage, Dice &dice) {
  Model model = switchedOn(episode.ios);
  const std::vector<Step> first = firstSteps(dice);
  for (std::size_t refused = 0; episode.steps.size() < kEpisodeLength && refused < 10;) {
    const bool isFirst = episode.steps.size() < first.size();
    const Step step = isFirst        ? first[episode.steps.size()]
                      : refused == 0 ? wantedStep(model, coverage, dice)
                                     : drawn(dice.below(operations().size()), dice);
    auto after = modelAfter(model, step);
    if (!after) {
      ++refused;
      continue;
    }
    refused = 0;
    coverage.count(model, step.operation);
    model = std::move(*after);
    episode.steps.push_back(step);
    if (auto found = differenceAfter(step, model); !found.empty()) return found;
  }
  return contentDifference(model);
}

}  // namespace

std::optional<Failure> walk(std::uint64_t seed, std::size_t steps, Coverage &coverage) {
  Dice dice(seed);
  for (std::size_t taken = 0; taken < steps;) {
    const int missing16 = coverage.missingOn(16), missing18 = coverage.missingOn(18);
    Episode episode{missing16 == missing18  ? dice.of(std::array{16, 18})
                    : missing16 > missing18 ? 16
                                            : 18,
                    {}};
    const std::string found = walkEpisode(episode, coverage, dice);
    if (!found.empty()) return Failure{episode, found};
    taken += episode.steps.size();
  }
  return std::nullopt;
}

std::optional<std::string> play(Episode &episode) {
  Model model = switchedOn(episode.ios);
  for (auto step = episode.steps.begin(); step != episode.steps.end();) {
    auto after = modelAfter(model, *step);
    if (!after) {
      step = episode.steps.erase(step);
      continue;
    }
    model = std::move(*after);
    auto found = differenceAfter(*step++, model);
    if (found.empty()) continue;
    episode.steps.erase(step, episode.steps.end());
    return found;
  }
  auto found = contentDifference(model);
  return found.empty() ? std::nullopt : std::optional(found);
}

Failure shortened(Failure failure) {
  for (std::size_t before = 0; before != failure.episode.steps.size();) {
    before = failure.episode.steps.size();
    for (std::size_t i = before; i-- > 0;) {
      Episode fewer = failure.episode;
      if (i >= fewer.steps.size()) continue;
      fewer.steps.erase(fewer.steps.begin() + static_cast<std::ptrdiff_t>(i));
      if (auto found = play(fewer)) failure = {std::move(fewer), std::move(*found)};
    }
  }
  return failure;
}

std::string toText(const Failure &failure) {
  std::string text = "iOS " + std::to_string(failure.episode.ios) + "\n";
  for (const Step &step : failure.episode.steps) text += "  " + toText(step) + "\n";
  return text + failure.difference + "\n";
}

}  // namespace vantorel::walk
