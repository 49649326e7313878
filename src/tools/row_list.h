// Numbers of rows, in an order.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace vemo {

// The first rows of a table, all of them, take no memory of their own.
class RowList {
  public:
    static RowList First(std::uint32_t count) {
        RowList list;
        list.count_ = count;
        return list;
    }
    static RowList Of(std::vector<std::uint32_t> rows) {
        RowList list;
        list.isListed_ = true;
        list.rows_ = std::move(rows);
        return list;
    }

    std::size_t Size() const { return isListed_ ? rows_.size() : count_; }
    std::uint32_t operator[](std::size_t at) const {
        return isListed_ ? rows_[at] : static_cast<std::uint32_t>(at);
    }
    void Add(std::uint32_t row) {
        if (!isListed_ && row == count_) {
            ++count_;
            return;
        }
        if (!isListed_) {
            *this = Of(Numbers());
        }
        rows_.push_back(row);
    }

  private:
    std::vector<std::uint32_t> Numbers() const {
        std::vector<std::uint32_t> numbers;
        for (std::uint32_t row = 0; row < count_; ++row) {
            numbers.push_back(row);
        }
        return numbers;
    }

    bool isListed_ = false;
    std::uint32_t count_ = 0;
    std::vector<std::uint32_t> rows_;
};

}  // namespace vemo
