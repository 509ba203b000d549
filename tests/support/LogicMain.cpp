// The entry of the logic tests, in the locale of the environment, which is what the toolkit gives the
// program.
#include <gtest/gtest.h>

#include <clocale>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    std::setlocale(LC_ALL, "");
    return RUN_ALL_TESTS();
}
