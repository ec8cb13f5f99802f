/* What Apple's header of this name declares and glibc spreads over others or lacks. */
#pragma once
#include <ctype.h>
#include <locale.h>
#include <stdarg.h>
#include <stddef.h>
#include <wchar.h>

#undef isdigit_l
#undef isxdigit_l

extern "C" {
int snprintf_l(char *, size_t, locale_t, const char *, ...);
int sscanf_l(const char *, locale_t, const char *, ...);
int asprintf_l(char **, locale_t, const char *, ...);
size_t mbsrtowcs_l(wchar_t *, const char **, size_t, mbstate_t *, locale_t);
}
