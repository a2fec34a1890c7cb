#include "ui/machine/AsOrdinaryUser.h"

// There the attributes of a file hold for everybody.
AsOrdinaryUser::AsOrdinaryUser() = default;

AsOrdinaryUser::~AsOrdinaryUser() = default;
