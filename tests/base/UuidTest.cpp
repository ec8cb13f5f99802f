#include "base/Uuid.h"

#include <gtest/gtest.h>

namespace vantorel {
namespace {

TEST(Uuid, ReadsAnyCaseAndWritesUpperCase) {
  const auto uuid = Uuid::parse("01234567-89ab-CDEF-fedc-BA9876543210");
  ASSERT_TRUE(uuid);
  EXPECT_EQ(uuid->bytes[0], 0x01);
  EXPECT_EQ(uuid->bytes[6], 0xCD);
  EXPECT_EQ(uuid->bytes[15], 0x10);
  EXPECT_EQ(uuid->text(), "01234567-89AB-CDEF-FEDC-BA9876543210");
  EXPECT_EQ(Uuid{}.text(), "00000000-0000-0000-0000-000000000000");
}

TEST(Uuid, RefusesEveryOtherForm) {
  for (const char *text : {"", "01234567-89AB-CDEF-FEDC-BA987654321", "01234567-89AB-CDEF-FEDC-BA98765432100",
                           "0123456789ABCDEFFEDCBA9876543210----", "01234567-89AB-CDEF-FEDC-BA987654321G",
                           "{1234567-89AB-CDEF-FEDC-BA987654321}", "01234567_89AB-CDEF-FEDC-BA9876543210",
                           "01234567-89AB-CDEF-FEDC--A9876543210", " 1234567-89AB-CDEF-FEDC-BA9876543210"})
    EXPECT_FALSE(Uuid::parse(text)) << text;
}

}  // namespace
}  // namespace vantorel
