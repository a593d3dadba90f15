// Stable bottom-up merge sort of a chain of nodes, by relinking alone.
#pragma once

#include <cstddef>

namespace kor::sort {

// `Chain` says what a chain is made of:
//   Node                     a handle: an index, a pointer
//   end()                    the handle that ends a chain
//   next(node), link(node, successor)
//   after(a, b)              whether a must come behind b; ties keep their order
template <class Chain>
class ChainSorter {
    using Node = typename Chain::Node;

  public:
    explicit ChainSorter(const Chain &chain) : chain_{chain} {}

    // The next node in the order of the scan: pairs are sorted and go on the stack, where chains of equal length merge as
    // a binary counter carries.
    void add(Node node)
    {
        if (pending_ == chain_.end()) {
            pending_ = node;
            return;
        }
        Node first = pending_, second = node;
        if (chain_.after(first, second)) {
            first = node;
            second = pending_;
        }
        chain_.link(first, second);
        chain_.link(second, chain_.end());
        pending_ = chain_.end();

        stack_[depth_++] = first;
        for (std::size_t carry = ++pairs_; (carry & 1) == 0; carry >>= 1) merge_top();
    }

    // All that was added, as one chain.
    Node finish()
    {
        if (pending_ != chain_.end()) {
            chain_.link(pending_, chain_.end());
            stack_[depth_++] = pending_;
        }
        while (depth_ > 1) merge_top();
        return depth_ > 0 ? stack_[0] : chain_.end();
    }

  private:
    static constexpr std::size_t kMaxChains = 32; // lengths are distinct powers of two

    void merge_top()
    {
        --depth_;
        stack_[depth_ - 1] = merged(stack_[depth_ - 1], stack_[depth_]);
    }

    Node merged(Node a, Node b) const
    {
        bool from_b = chain_.after(a, b);
        const Node head = from_b ? b : a;
        for (;;) {
            // Run along one chain for as long as it supplies the next node, then cross over.
            Node last;
            if (from_b) {
                do {
                    last = b;
                    b = chain_.next(b);
                } while (b != chain_.end() && chain_.after(a, b));
                chain_.link(last, a);
                if (b == chain_.end()) return head;
            } else {
                do {
                    last = a;
                    a = chain_.next(a);
                } while (a != chain_.end() && !chain_.after(a, b));
                chain_.link(last, b);
                if (a == chain_.end()) return head;
            }
            from_b = !from_b;
        }
    }

    const Chain &chain_;
    Node stack_[kMaxChains];
    std::size_t depth_ = 0;
    std::size_t pairs_ = 0;
    Node pending_ = chain_.end();
};

} // namespace kor::sort
