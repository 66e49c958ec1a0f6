#pragma once
// Whole deals for the reservation tests: seat 1 holds the listed cards, the rest of
// the double deck goes round the other seats in a fixed order.
#include <algorithm>
#include <vector>

namespace testhilfe {

inline std::vector<std::vector<int>> mitRest(const std::vector<int>& sitz1) {
    std::vector<int> rest;
    for (int code = 1; code <= 24; ++code)
        for (int kopie = 0; kopie < 2; ++kopie) rest.push_back(code);
    for (int code : sitz1) rest.erase(std::find(rest.begin(), rest.end(), code));
    std::vector<std::vector<int>> haende{sitz1, {}, {}, {}};
    for (std::size_t i = 0; i < rest.size(); ++i) haende[1 + i % 3].push_back(rest[i]);
    return haende;
}

}  // namespace testhilfe
