#include "platform/files/Paths.h"

#include <gtest/gtest.h>

namespace ballhaven::platform {
namespace {

TEST(Paths, ADirectoryEndsInOneSeparator) {
    const std::string separator(1, directorySeparator);

    EXPECT_EQ(WithSeparator("home"), "home" + separator);
    EXPECT_EQ(WithSeparator("home" + separator), "home" + separator);
    EXPECT_EQ(WithSeparator(""), separator);
}

}  // namespace
}  // namespace ballhaven::platform
