#pragma once

#include "driver/UserPlaces.h"
#include "ui/machine/QtStateFolder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

// The state folder on a real disk. It is not there yet.
class StateFolderTest : public testing::Test {
protected:
    using Texts = std::vector<std::string>;

    static QString FolderPath() { return UserPlaces::StateFolder(); }

private:
    UserPlaces m_places;

protected:
    Ui::QtStateFolder folder;
};
