#pragma once

namespace vantorel {

/// Output that nobody reads any more fails instead of ending the process, and bytes pass as they are. Call it first.
void prepareStandardStreams();

}  // namespace vantorel
