/* Both headers are C99, alone and together. */
#include "vantorel/simulated_device.h"
#include "vantorel/vantorel.h"

#include <stdlib.h>

static int starts;

static void didStart(void) { ++starts; }

static void snapshot(const char *text) { free((void *)text); }

int vantorelHostInC(void);

/** Whether a set-up reached a callback written in C. */
int vantorelHostInC(void) {
  const vantorelBool off = 0;
  starts = 0;
  setVTLDidStart(didStart);
  setVTLRoomSnapshot(snapshot);
  isVTLDefaultScanEnabled(off);
  initializeVTL();
  vantorelDeviceAdvance(0);
  return starts == 1 && VantorelVersionNumber > 1 && VantorelVersionString[0] == '@';
}
