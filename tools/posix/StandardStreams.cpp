#include "StandardStreams.h"

#include <csignal>

void vantorel::prepareStandardStreams() { std::signal(SIGPIPE, SIG_IGN); }
