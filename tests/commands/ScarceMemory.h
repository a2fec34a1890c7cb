#pragma once

// While one of these lives, one allocation of the test fails: the one behind `before` others.
class ScarceMemory {
public:
    explicit ScarceMemory(long before);
    ~ScarceMemory();
    ScarceMemory(const ScarceMemory&) = delete;
    ScarceMemory& operator=(const ScarceMemory&) = delete;

    // From now on there is enough. True when the allocation has failed.
    [[nodiscard]] bool End();
};
