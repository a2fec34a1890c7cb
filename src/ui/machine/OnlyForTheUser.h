#pragma once

namespace Ui {

// What is made meanwhile is for nobody else, from the moment that it is made.
class OnlyForTheUser {
public:
    OnlyForTheUser();
    ~OnlyForTheUser();
    OnlyForTheUser(const OnlyForTheUser&) = delete;
    OnlyForTheUser& operator=(const OnlyForTheUser&) = delete;

private:
    unsigned m_before; // as the system had it
};

} // namespace Ui
