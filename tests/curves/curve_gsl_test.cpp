// The curves against those of the GNU Scientific Library. Both are Akima's, and the extrapolated slopes at the ends are
// the same numbers; the two differ by definition in what a point does where no slope changes on either side of it, in
// how many points they want, and outside the points.
#include "Curves.h"

#include <gsl/gsl_errno.h>
#include <gsl/gsl_interp.h>

#include <cmath>
#include <memory>

namespace Tarnwise {
namespace {

class Peer {
 public:
  explicit Peer(const Curve& curve)
      : curve_(curve), interp_(gsl_interp_alloc(gsl_interp_akima, static_cast<std::size_t>(curve.N))) {
    gsl_interp_init(interp_.get(), curve_.X.data(), curve_.Y.data(), static_cast<std::size_t>(curve.N));
  }

  Double At(Double x) const { return gsl_interp_eval(interp_.get(), curve_.X.data(), curve_.Y.data(), x, nullptr); }

 private:
  struct Free {
    void operator()(gsl_interp* interp) const { gsl_interp_free(interp); }
  };

  const Curve curve_;
  std::unique_ptr<gsl_interp, Free> interp_;
};

// The largest deviation inside the points, relative to the value.
Double Deviation(const Curve& curve, Chance& chance) {
  const Peer peer(curve);
  const auto last = static_cast<std::size_t>(curve.N) - 1;
  Double worst = 0.0;
  const auto compare = [&](Double x) {
    const Double expected = peer.At(x);
    worst = std::max(worst, std::fabs(ValueAt(curve, x) - expected) / std::fabs(expected));
  };
  for (int time = 0; time < 40; ++time) compare(chance.Real(curve.X[0], curve.X[last]));
  for (std::size_t k = 0; k <= last; ++k) compare(curve.X[k]);
  return worst;
}

TEST(CurveAgainstGsl, RandomRisingCurvesOfFiveToElevenPointsAreEqual) {
  Chance chance(5);
  for (int time = 0; time < 7000; ++time) {
    const int n = 5 + time % 7;
    EXPECT_LE(Deviation(chance.RisingCurve(n, chance.Real(-100.0, 100.0), 0.1, 1.0), chance), 1e-12) << n;
  }
}

TEST(CurveAgainstGsl, RandomCurvesThatRiseAndFallAreEqual) {
  Chance chance(6);
  for (int time = 0; time < 7000; ++time) {
    const int n = 5 + time % 7;
    // Far enough from zero that no value comes near it between the points.
    EXPECT_LE(Deviation(chance.AnyCurve(n, chance.Real(-100.0, 100.0), 9.0, 10.0), chance), 1e-12) << n;
  }
}

TEST(CurveAgainstGsl, TheExtrapolatedSlopesAtBothEndsAreTheSame) {
  Chance chance(7);
  for (int n = 5; n <= 11; ++n) {
    for (int time = 0; time < 100; ++time) {
      const Curve curve = chance.RisingCurve(n, 0.0, 0.1, 1.0);
      const Peer peer(curve);
      const auto last = static_cast<std::size_t>(n) - 1;
      for (const Double part : {0.1, 0.5, 0.9}) {
        for (const std::size_t k : {std::size_t{0}, std::size_t{1}, last - 2, last - 1}) {
          const Double x = curve.X[k] + part * (curve.X[k + 1] - curve.X[k]);
          EXPECT_NEAR(ValueAt(curve, x) / peer.At(x), 1.0, 1e-12);
        }
      }
    }
  }
}

TEST(CurveAgainstGsl, AStraightLineIsTheSameInBoth) {
  const Curve line = CurveThrough({0, 1, 3, 4, 8}, {1, 2, 4, 5, 9});
  const Peer peer(line);
  for (const Double x : {0.0, 0.3, 1.0, 2.0, 3.5, 6.0, 8.0}) EXPECT_DOUBLE_EQ(ValueAt(line, x), peer.At(x));
}

TEST(CurveAgainstGsl, DiffersAtAKinkBetweenTwoStraightPieces) {
  // Slopes 1, 1, 3, 3: here the kink has the mean slope 2; there each piece keeps its own and stays straight.
  const Curve kink = CurveThrough({0, 1, 2, 3, 4}, {1, 2, 3, 6, 9});
  const Peer peer(kink);
  EXPECT_DOUBLE_EQ(peer.At(1.5), 2.5);
  EXPECT_DOUBLE_EQ(peer.At(2.5), 4.5);
  // Interval 1: slopes 1 and 2 at its ends, so 1 + d - d^2 + d^3 above the point (1, 2), less the constant.
  EXPECT_DOUBLE_EQ(ValueAt(kink, 1.5), 2.0 + 0.5 - 0.25 + 0.125);
  // Interval 2: slopes 2 and 3: 2 d + 2 d^2 - d^3 above the point (2, 3).
  EXPECT_DOUBLE_EQ(ValueAt(kink, 2.5), 3.0 + 1.0 + 0.5 - 0.125);
}

TEST(CurveAgainstGsl, DiffersWhereTheChangesAreBelowTheMachineEpsilon) {
  // Slopes 1, 2, 1, 5 times 1E-17: here they count as none and the point takes the mean 1.5; there the weights hold,
  // and it takes 1.8. At the points themselves both agree.
  const Curve tiny = CurveThrough({0, 1, 2, 3, 4}, {1e-17, 2e-17, 4e-17, 5e-17, 10e-17});
  const Peer peer(tiny);
  EXPECT_GT(std::fabs(ValueAt(tiny, 2.25) / peer.At(2.25) - 1.0), 1e-3);
  EXPECT_DOUBLE_EQ(ValueAt(tiny, 2.0), peer.At(2.0));
}

TEST(CurveAgainstGsl, ThreeAndFourPointsAreACurveHereAndRefusedThere) {
  gsl_error_handler_t* const former = gsl_set_error_handler_off();
  for (const std::size_t n : {std::size_t{3}, std::size_t{4}}) {
    gsl_interp* const refused = gsl_interp_alloc(gsl_interp_akima, n);
    EXPECT_EQ(refused, nullptr);
    gsl_interp_free(refused);
  }
  gsl_set_error_handler(former);
  EXPECT_DOUBLE_EQ(ValueAt(CurveThrough({0, 1, 2}, {0, 1, 2}), 0.5), 0.5);
  EXPECT_DOUBLE_EQ(ValueAt(CurveThrough({0, 1, 2, 3}, {0, 1, 2, 3}), 1.5), 1.5);
}

TEST(CurveAgainstGsl, OutsideThePointsTheCurveGoesOnHereAndIsNoNumberThere) {
  const Curve curve = CurveThrough({0, 1, 3, 4, 8}, {1, 2, 4, 5, 9});
  gsl_error_handler_t* const former = gsl_set_error_handler_off();
  EXPECT_TRUE(std::isnan(Peer(curve).At(9.0)));
  EXPECT_TRUE(std::isnan(Peer(curve).At(-1.0)));
  gsl_set_error_handler(former);
  EXPECT_DOUBLE_EQ(ValueAt(curve, 9.0), 10.0);
  EXPECT_NEAR(ValueAt(curve, -1.0), 0.0, 1e-15);
}

}  // namespace
}  // namespace Tarnwise
