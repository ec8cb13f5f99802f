#include "support/DeviceTest.h"

#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <regex>
#include <set>

namespace vantorel::testing {
namespace {

using Export = DeviceTest;

TEST_F(Export, GivesAFreshCopyOfEachText) {
  char *first = getVantorelVersion();
  char *second = getVantorelVersion();
  EXPECT_STREQ(first, "Vantorel 1.3.0");
  EXPECT_STREQ(second, "Vantorel 1.3.0");
  EXPECT_NE(first, second);
  std::free(first);
  std::free(second);
}

TEST_F(Export, CopiesAndRepairsTexts) {
  char directory[] = "caf\xC3\xA9", scan[] =
                                        "a\xF0\x9F\x8F"
                                        "b\xFF";
  EXPECT_EQ(trySaveRoomPlanExperience(directory, scan), 1);
  directory[0] = scan[0] = 'X';
  EXPECT_EQ(state("directoryName"), "\"caf\xC3\xA9\"");
  EXPECT_EQ(state("scanName"),
            "\"a\xEF\xBF\xBD"
            "b\xEF\xBF\xBD\"");
  EXPECT_EQ(files().back(),
            "caf\xC3\xA9/a\xEF\xBF\xBD"
            "b\xEF\xBF\xBD/scan.json");
}

// ---- The headers and the built library ----

extern "C" int vantorelHostInC(void);

TEST_F(Export, ServesAHostInC) { EXPECT_EQ(vantorelHostInC(), 1); }

const std::string kLibrary = VANTOREL_BINARY_DIR "/lib/libvantorel.so";

/// The last word before the first parenthesis, bracket or semicolon of each declaration.
std::set<std::string> declaredNames(const std::string &header) {
  const std::string text = readFile(std::string(VANTOREL_SOURCE_DIR) + "/include/vantorel/" + header);
  static const std::regex declaration(R"(\n(extern )?VANTOREL_EXPORT [^;(\[]*?(\w+)[;(\[])");
  std::set<std::string> names;
  for (std::sregex_iterator match(text.begin(), text.end(), declaration), end; match != end; ++match)
    names.insert((*match)[2]);
  return names;
}

std::set<std::string> exportedNames() {
  std::set<std::string> names;
  FILE *list = popen(("nm -D --defined-only '" + kLibrary + "'").c_str(), "r");
  char line[512], name[512];
  while (list && std::fgets(line, sizeof line, list))
    if (std::sscanf(line, "%*s %*s %511s", name) == 1) names.insert(name);
  if (list) pclose(list);
  return names;
}

TEST(SharedLibrary, ExportsExactlyWhatTheHeadersDeclare) {
  auto declared = declaredNames("vantorel.h");
  EXPECT_EQ(declared.size(), 56U) << "54 functions and the version record";
  declared.merge(declaredNames("simulated_device.h"));
  EXPECT_EQ(exportedNames(), declared);
}

TEST(SharedLibrary, CarriesTheVersionRecord) {
  void *library = dlopen(kLibrary.c_str(), RTLD_NOW | RTLD_LOCAL);
  ASSERT_NE(library, nullptr) << dlerror();
  const auto *number = static_cast<const double *>(dlsym(library, "VantorelVersionNumber"));
  const auto *text = static_cast<const char *>(dlsym(library, "VantorelVersionString"));
  ASSERT_TRUE(number && text);
  EXPECT_EQ(*number, 1.3);
  EXPECT_STREQ(text, "@(#)PROGRAM:Vantorel  PROJECT:Vantorel-1.3.0\n");
  dlclose(library);
}

}  // namespace
}  // namespace vantorel::testing
