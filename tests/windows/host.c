/* host.exe DLL ROOM: a host that loads the library as the Unity Editor does, scans ROOM and saves it into the working
 * directory. ROOM is pretty and sorted, as the device writes it. Exit code 0: all was as expected. */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <vantorel/simulated_device.h>
#include <windows.h>

static HMODULE library;
static void(__cdecl *freeText)(void *); /* of the run time that the library allocates with */
static int updates, failures;
static char *snapshot;

static void expect(int holds, const char *what) {
  printf("%s %s\n", holds ? "ok    " : "FAILED", what);
  if (!holds) ++failures;
}

static FARPROC find(HMODULE module, const char *name) {
  FARPROC function = GetProcAddress(module, name);
  if (function) return function;
  printf("FAILED there is no %s\n", name);
  exit(1);
}

#define CALL(name) ((__typeof__(&name))(void (*)(void))find(library, #name))

static void didUpdate(void) { ++updates; }

static void keep(const char *text) {
  if (snapshot) freeText(snapshot);
  snapshot = (char *)text;
}

static int succeeded(char *refusal) {
  if (!refusal) return 1;
  printf("       %s\n", refusal);
  freeText(refusal);
  return 0;
}

static int isFile(const char *path, const char *text) {
  const size_t length = strlen(text);
  char *bytes = malloc(length + 1);
  FILE *file = fopen(path, "rb");
  const int same =
      bytes && file && fread(bytes, 1, length + 1, file) == length && memcmp(bytes, text, length) == 0;
  if (file) fclose(file);
  free(bytes);
  return same;
}

static void scan(const char *room) {
  CALL(setVTLCaptureSessionDidUpdate)(didUpdate);
  CALL(setVTLRoomSnapshot)(keep);
  expect(succeeded(CALL(vantorelDeviceSetDocumentsDirectory)("r\xC3\xA4ume")),
         "the documents directory is taken");
  expect(succeeded(CALL(vantorelDeviceSetRoom)(room, 2, 10)), "the room is taken");
  CALL(initializeVTL)();
  expect(succeeded(CALL(vantorelDeviceAdvance)(0)), "the library starts");
  CALL(startCaptureSession)();
  expect(succeeded(CALL(vantorelDeviceAdvance)(3)), "time goes on");
  expect(updates == 20, "twenty updates came");
  expect(snapshot && isFile(room, snapshot), "the last snapshot is the room");
  expect(CALL(trySaveRoomPlanExperience)("scans", "first") == 1, "the save succeeds");
  CALL(startCaptureSession)();
  expect(succeeded(CALL(vantorelDeviceAdvance)(1)), "another scan begins, and the process ends during it");
}

int main(int argc, char **argv) {
  if (argc != 3) return 2;
  library = LoadLibraryA(argv[1]);
  if (!library) return printf("FAILED to load %s: error %lu\n", argv[1], GetLastError()), 1;
  freeText = (void(__cdecl *)(void *))(void (*)(void))find(GetModuleHandleA("msvcrt.dll"), "free");
  char *version = CALL(getVantorelVersion)();
  expect(strcmp(version, "Vantorel 1.3.0") == 0, "the version is read");
  freeText(version);
  expect(*(const double *)(void *)find(library, "VantorelVersionNumber") == 1.3,
         "the version record is there");
  scan(argv[2]);
  return failures != 0;
}
