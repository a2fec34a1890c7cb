// What drives the window passes nothing over.

#include "ui/windows/FormTest.h"

#include <stdexcept>

TEST_F(FormTest, WhatCannotBeDoneByMouseOrKeysIsAnError) {
    EXPECT_THROW(Click("cbNothing"), std::runtime_error);
    EXPECT_THROW(Click("cbSave"), std::runtime_error);
    EXPECT_THROW(ClickDisabled("cbOpen"), std::runtime_error);
    EXPECT_THROW(ClickRow("lvAlpha", QStringLiteral("Alpha")), std::runtime_error);
    EXPECT_THROW(ClickRow("lvAlpha", 0), std::runtime_error);
    EXPECT_THROW(Key("cbSave", Qt::Key_Space), std::runtime_error);
    EXPECT_THROW(Type(QStringLiteral("x")), std::runtime_error);
}
