#include "LibraryCalls.h"

#include "vantorel/simulated_device.h"

#include "Arguments.h"
#include "DeviceText.h"
#include "Listening.h"

#include <algorithm>
#include <array>
#include <span>
#include <tuple>
#include <type_traits>
#include <variant>

namespace vantorel {
namespace {

/// The shapes that exported functions have.
using LibraryFunction =
    std::variant<void (*)(), void (*)(vantorelBool), void (*)(const char *),
                 void (*)(const char *, const char *), void (*)(const char *, const char *, const char *),
                 char *(*)(), vantorelBool (*)(), vantorelBool (*)(const char *, const char *)>;

struct LibraryCall {
  std::string_view name;
  LibraryFunction function;
};

void handOverSession() { setVantorelXRSession(vantorelDeviceARSession()); }

#define CALL(function) \
  LibraryCall { #function, function }

constexpr LibraryCall kCalls[] = {
    CALL(prepareVTLResources),
    CALL(initializeVTL),
    CALL(disposeVTL),
    {"setVantorelXRSession", handOverSession},
    CALL(isVTLCustomXREnabled),
    CALL(isVTLDefaultScanEnabled),
    CALL(isVTLDefaultMiniatureModelEnabled),
    CALL(isVTLDefaultScanDataTransferEnabled),
    CALL(isVTLCoachingEnabled),
    CALL(isVTLInstructionEnabled),
    CALL(isVTLMultiRoomEnabled),
    CALL(isVTLARWorldMapEnabled),
    CALL(startCaptureSession),
    CALL(runCaptureSession),
    CALL(stopCaptureSession),
    CALL(stopCaptureSessionWithPause),
    CALL(pauseCaptureSessionScanning),
    CALL(resumeCaptureSessionScanning),
    CALL(createNewRoomCaptureSession),
    CALL(startCaptureSessionWithARWorldMap),
    CALL(stopCaptureSessionWithARWorldMap),
    CALL(saveRoomPlanExperience),
    CALL(trySaveRoomPlanExperience),
    CALL(mergeScans),
    CALL(setFlashlightStatus),
    CALL(vtl_QuickLook),
    CALL(vtl_shareFolder),
    CALL(vtl_shareFile),
    CALL(screenshotVTL),
    CALL(isNativeScreenshot),
    CALL(isNativeScreenshotPreview),
    CALL(getVTLNativeScreenshotOutputURL),
    CALL(screenshotShareVTL),
    CALL(startScreenRecorderVTL),
    CALL(stopScreenRecorderVTL),
    CALL(isNativeScreenRecorder),
    CALL(isNativeScreenRecorderPreview),
    CALL(getVTLNativeScreenRecorderOutputURL),
    CALL(getVantorelVersion),
    CALL(getVTLARCameraMatrixRuntime),
    CALL(getVTLARCameraProjectionMatrixRuntime),
    CALL(VantorelSupport),
    CALL(MultiRoomSupport),
    CALL(ARWorldMapSupport),
};

#define SETTER(slot)                                           \
  LibraryCall {                                                \
    "set" #slot, [] { set##slot(Listening::callback<#slot>); } \
  }

constexpr LibraryCall kSetters[] = {
    SETTER(VTLDidStart),
    SETTER(VTLDidEnd),
    SETTER(VTLCaptureSessionDidStart),
    SETTER(VTLCaptureSessionDidEnd),
    SETTER(VTLCaptureSessionDidAdd),
    SETTER(VTLCaptureSessionDidUpdate),
    SETTER(VTLCaptureSessionDidChange),
    SETTER(VTLCaptureSessionDidRemove),
    SETTER(VTLCaptureSessionInstruction),
    SETTER(VTLRoomSnapshot),
};

void printResult(std::string_view name, vantorelBool result) {
  Listening::hear("return", name, EventValue::boolean(result != 0));
}

void printResult(std::string_view name, char *result) {
  const DeviceText owned(result);
  Listening::hear("return", name, EventValue::text(owned ? owned.get() : ""));
}

template <typename Result, typename... Arguments>
void call(std::string_view name, Result (*function)(Arguments...), Arguments... arguments) {
  if constexpr (std::is_void_v<Result>) {
    function(arguments...);
  } else {
    printResult(name, function(arguments...));
  }
}

/// One word an argument: functions take one Boolean or any number of texts.
template <typename Result>
void invoke(const Words &words, Result (*function)(vantorelBool)) {
  expectArguments(words, 1, 1);
  call(words[0], function, booleanArgument(words[1]));
}

template <typename Result, typename... Texts>
void invoke(const Words &words, Result (*function)(Texts...)) {
  constexpr std::size_t kCount = sizeof...(Texts);
  expectArguments(words, kCount, kCount);
  std::array<std::string, kCount> texts;
  std::transform(words.begin() + 1, words.end(), texts.begin(), textArgument);
  std::apply([&](const auto &...text) { call(words[0], function, text.c_str()...); }, texts);
}

const LibraryCall *find(std::span<const LibraryCall> calls, std::string_view name) {
  const auto found =
      std::find_if(calls.begin(), calls.end(), [&](const auto &call) { return call.name == name; });
  return found == calls.end() ? nullptr : &*found;
}

}  // namespace

bool callLibrary(const Words &words) {
  const LibraryCall *found = find(kCalls, words[0]);
  if (!found) found = find(kSetters, words[0]);
  if (found) std::visit([&](auto function) { invoke(words, function); }, found->function);
  return found != nullptr;
}

void registerCallbacks() {
  for (const LibraryCall &setter : kSetters) std::get<void (*)()>(setter.function)();
}

}  // namespace vantorel
