#pragma once

#include "runtime/number.h"

// The signs of numbers on a German and on an English system.
inline const runtime::NumberSigns German{.decimal = ",", .grouping = "."};
inline const runtime::NumberSigns English{.decimal = ".", .grouping = ","};
