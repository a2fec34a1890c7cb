#pragma once

#include "core/State.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

// Everything as it is when the program starts.
void ResetEverything();

// A fresh state for every test, and short ways to put districts into the table.
class StateTest : public testing::Test {
protected:
    StateTest() { ResetEverything(); }
    // What looks at texts without a table takes them for Windows-1252.
    ~StateTest() override { CommonRoutines::eFileEncoding = CommonRoutines::Encoding::Windows1252; }
};

// Appends a district with these variations to the table and returns its index.
std::int32_t AddDistrict(const std::string& name, const std::vector<std::string>& variations = {});

// Appends a retained line and returns its index.
std::int32_t AddRetained(const std::string& line);

CommonRoutines::DistrictRecord& DistrictAt(std::int32_t index);
CommonRoutines::VariationRecord& VariationAt(std::int32_t district, std::int32_t index);
