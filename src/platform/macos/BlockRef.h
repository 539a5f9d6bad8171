// SPDX-License-Identifier: MIT
// A counted reference to a block, for C++ that is not compiled as Objective-C.
#pragma once

#include <Block.h>

namespace fadeloom {

/// Keeps a block on the heap at a stable address: removing a block compares addresses.
template <typename Block>
class BlockRef {
public:
    explicit BlockRef(Block block)
        : block_(Block_copy(block))
    {
    }
    BlockRef(const BlockRef&) = delete;
    BlockRef& operator=(const BlockRef&) = delete;
    ~BlockRef() { Block_release(block_); }

    [[nodiscard]] Block get() const { return block_; }

private:
    Block block_;
};

}  // namespace fadeloom
