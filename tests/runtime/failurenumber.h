#pragma once

#include "runtime/failure.h"

// The number of the failure with which the statement ends; 0 when it ends well.
template <typename Statement>
int FailureNumberOf(Statement&& statement) {
    try {
        statement();
        return 0;
    } catch (const runtime::Failure& failure) {
        return failure.number;
    }
}
