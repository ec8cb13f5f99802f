#include "platform/simulated/SimulatedPlatform.h"

namespace vantorel {

Platform &platform() { return simulatedPlatform(); }

}  // namespace vantorel
