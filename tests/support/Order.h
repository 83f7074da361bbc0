/// @file
/// Comparisons in all their forms.
#pragma once

#include <gtest/gtest.h>

/// @param order below zero if `a` comes first, zero if they are equal
template <class A, class B>
void ExpectOrder(int order, const A& a, const B& b) {
    EXPECT_EQ(order == 0, a == b);
    EXPECT_EQ(order != 0, a != b);
    EXPECT_EQ(order < 0, a < b);
    EXPECT_EQ(order > 0, a > b);
    EXPECT_EQ(order <= 0, a <= b);
    EXPECT_EQ(order >= 0, a >= b);
}
