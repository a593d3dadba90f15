// A function on an interval as a table of polynomials, each about a centre of its own.
//
// With d = x - centre the value is (value + slope d) + d^2 (bend + d rest(d)). The part in front is formed without rounding
// error worth the name: value and slope have low parts, slope's high part is short enough for its product with the upper
// half of d to be exact, and d itself is exact since a piece is narrow. What remains is small against it. So a sum costs
// little more than one rounding, and next to a zero, which is always the centre of its piece, it keeps that accuracy
// relative to the value itself. Tables come from tools/special/bessel_tables.py.
#pragma once

#include "special/evaluate.hpp"

namespace kor::special {

inline constexpr std::size_t kPieceTerms = 12; // coefficients of `rest`
inline constexpr double kCellsPerUnit = 16.0;  // pieces begin and end at multiples of 1/16

struct Piece {
    double centre, centre_low;
    double value, value_low; // 0, or |value| >= |slope d| in the whole piece
    double slope, slope_low; // slope has at most 26 bits
    double bend;
    std::array<double, kPieceTerms> rest;

    KOR_INLINE constexpr double operator()(double x) const
    {
        const double exact = x - centre;
        const double d = exact - centre_low;
        const double d_high = upper_half(exact), d_low = (exact - d_high) - centre_low;
        const DoubleDouble lead = fast_two_sum(value, slope * d_high);
        const double low = lead.lo + (value_low + (slope * d_low + slope_low * d));
        return lead.hi + (low + d * d * (bend + d * polynomial(rest, d)));
    }
};

template <std::size_t Pieces, std::size_t Cells>
class PiecewisePolynomial {
  public:
    // `first_cell`: where each piece begins, counted from `begin`.
    constexpr PiecewisePolynomial(double begin, const std::array<std::uint16_t, Pieces> &first_cell,
                                  const std::array<Piece, Pieces> &pieces)
        : begin_{begin}, piece_of_cell_{}, pieces_{pieces}
    {
        static_assert(Pieces <= 256);
        std::size_t piece = 0;
        for (std::size_t cell = 0; cell <= Cells; ++cell) {
            if (piece + 1 < Pieces && cell == first_cell[piece + 1]) ++piece;
            piece_of_cell_[cell] = static_cast<std::uint8_t>(piece);
        }
    }

    constexpr double begin() const { return begin_; }
    constexpr double end() const { return begin_ + Cells / kCellsPerUnit; }

    // begin() <= x < end().
    KOR_INLINE constexpr double operator()(double x) const
    {
        return pieces_[piece_of_cell_[static_cast<int>((x - begin_) * kCellsPerUnit)]](x);
    }

  private:
    double begin_;
    std::array<std::uint8_t, Cells + 1> piece_of_cell_; // one more: x - begin() may round up to the end
    std::array<Piece, Pieces> pieces_;
};

} // namespace kor::special
