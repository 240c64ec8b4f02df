#pragma once

#include <gtest/gtest.h>

#include <source_location>

/// For a table whose rows are calls of a checking lambda: the lambda takes
/// `std::source_location row = std::source_location::current()` last and opens
/// `const auto trace = rowTrace(row);`, so that a failure inside it names the row's line.
inline ::testing::ScopedTrace rowTrace(const std::source_location& row) {
    return {row.file_name(), static_cast<int>(row.line()), "in this row"};
}
