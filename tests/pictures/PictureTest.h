// The tests of the pictures: a loaded window over the pictured planner, at the scale of this process.
#pragma once

#include "pictures/PictureOptions.h"
#include "pictures/PicturePlanner.h"
#include "support/WindowTest.h"

class PictureTest : public WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp(); // noon of 14 October 2009
        WriteData("terms.xml", TermsFile({TermText{}}));
        LoadWindow();
        FillPicturePlanner();
        window->picGrid->setFocus();
        ASSERT_EQ(window->devicePixelRatio(), PictureScale);
    }
};
