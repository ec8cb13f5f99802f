/* The smallest host, for a Mac's linker. The simulator can run it and must say that it cannot scan. */
#include "vantorel/vantorel.h"

#include <stdio.h>
#include <stdlib.h>

int main(void) {
  char *version = getVantorelVersion();
  const int canScan = VantorelSupport() & 1;
  printf("Vantorel %s, %s\n", version, canScan ? "can scan" : "cannot scan");
  free(version);
  return canScan;
}
