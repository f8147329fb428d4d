#pragma once

#include "runtime/failure.h"

// The number of the failure that the statement throws; 0 when it throws none.
template <typename Statement>
int FailureOf(Statement&& statement) {
    try {
        statement();
        return 0;
    } catch (const runtime::Failure& failure) {
        return failure.number;
    }
}
