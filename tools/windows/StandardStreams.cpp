#include "StandardStreams.h"

#include <cstdio>
#include <fcntl.h>
#include <io.h>

/// Text mode would make two bytes of each line's end, and an end of Ctrl+Z.
void vantorel::prepareStandardStreams() {
  _setmode(_fileno(stdin), _O_BINARY);
  _setmode(_fileno(stdout), _O_BINARY);
}
