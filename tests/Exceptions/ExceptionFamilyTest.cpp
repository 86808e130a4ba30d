#include <Exceptions/ArgumentException.h>

#include <gtest/gtest.h>

TEST(ExceptionFamily, HostCatchesByTypeAndByBase)
{
    EXPECT_THROW(throw Vek::ArgumentException(), std::exception);
    EXPECT_STREQ("ArgumentException", Vek::ArgumentException().what());
}
