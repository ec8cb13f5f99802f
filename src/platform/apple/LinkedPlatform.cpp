#include "platform/apple/ApplePlatform.h"

namespace vantorel {

Platform &platform() {
  static auto &kept = *new apple::ApplePlatform;  // never destroyed: threads may outlive main()
  return kept;
}

}  // namespace vantorel
