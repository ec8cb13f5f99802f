#include "platform/simulated/SimulatedMedia.h"

namespace vantorel {

void SimulatedPresenter::present(Presentation, const std::string &) {}

void SimulatedScreenRecorder::start(Completion) {}

void SimulatedScreenRecorder::stop(const std::string &, Completion) {}

}  // namespace vantorel
