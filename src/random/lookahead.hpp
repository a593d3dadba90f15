// Numbers read ahead of the stream, for samplers that try many candidates at once but must take from the stream no more
// than those that one trial at a time would have used.
#pragma once

#include "random/fill_uniform.hpp"
#include "random/state.hpp"

namespace kor::random {

class Lookahead {
  public:
    explicit Lookahead(State &state) : state_{state}, word_{state.delivered()} {}
    Lookahead(const Lookahead &) = delete;
    Lookahead &operator=(const Lookahead &) = delete;

    // The stream moves to where the draws have come.
    ~Lookahead()
    {
        if (drawn_ <= kBuffer - state_.ip) {
            state_.ip += static_cast<std::ptrdiff_t>(drawn_);
        } else {
            state_.word = word_;
            state_.ip = kBuffer;
        }
    }

    // The next n numbers, without drawing them.
    void peek(std::ptrdiff_t n, double *u) const { fill_uniform(word_, n, u); }

    // Draws the next n numbers.
    void draw(std::ptrdiff_t n)
    {
        word_ = later(word_, n);
        drawn_ += n;
    }

  private:
    State &state_;
    std::uint64_t word_;
    std::int64_t drawn_ = 0;
};

} // namespace kor::random
