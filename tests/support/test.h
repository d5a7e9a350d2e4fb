// What nearly every test needs: tables of rows, and errors that are expected.
#pragma once

#include <gtest/gtest.h>

#include "support/errors.h"
#include "support/table.h"

using support::Row;
