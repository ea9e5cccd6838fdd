#include "qorvex/base/special/detail/uniform_gamma.h"

#include <array>
#include <cmath>
#include <cstddef>

#include "qorvex/base/elementary.h"
#include "qorvex/base/special/detail/normal_wide.h"

namespace qorvex::special {

namespace {

// The coefficients of eta^n in c_k(eta): with eta^2 / 2 = mu - ln(1 + mu) and the coefficients g_k
// of 1/a^k in Gamma(a) sqrt(a / (2 pi)) (e / a)^a, c_0 = 1 / mu - 1 / eta and c_k = c_(k-1)' / eta
// + (-1)^k g_k / mu.
constexpr std::array kC0{
    -3.333333333333333333333e-1L,  8.333333333333333333333e-2L,   -1.481481481481481481481e-2L,
    1.157407407407407407407e-3L,   3.527336860670194003527e-4L,   -1.787551440329218106996e-4L,
    3.919263178522437781697e-5L,   -2.185448510679992161474e-6L,  -1.854062210715159960702e-6L,
    8.296711340953086005016e-7L,   -1.766595273682607930436e-7L,  6.707853543401498580369e-9L,
    1.026180978424030804257e-8L,   -4.382036018453353186553e-9L,  9.147699582236790234182e-10L,
    -2.551419399494624976688e-11L, -5.830772132550425067464e-11L, 2.436194802066741624369e-11L,
};
constexpr std::array kC1{
    -1.851851851851851851852e-3L, -3.472222222222222222222e-3L,  2.645502645502645502646e-3L,
    -9.902263374485596707819e-4L, 2.057613168724279835391e-4L,   -4.018775720164609053498e-7L,
    -1.809855033448997783703e-5L, 7.649160916081110084637e-6L,   -1.612090089456344600378e-6L,
    4.647127802807434342261e-9L,  1.378633446915720959312e-7L,   -5.752545603517704964022e-8L,
    1.195162859977814732431e-8L,  -1.754324171974764762375e-11L, -1.009154371060041262746e-9L,
};
constexpr std::array kC2{
    4.133597883597883597884e-3L,  -2.681327160493827160494e-3L, 7.716049382716049382716e-4L,
    2.009387860082304526749e-6L,  -1.073665322636516052154e-4L, 5.292344882912012541642e-5L,
    -1.276063518861872771338e-5L, 3.423578734096138074190e-8L,  1.372195730906293320559e-6L,
    -6.298992138380055022907e-7L, 1.428061420606424179158e-7L,
};
constexpr std::array kC3{
    6.494341563786008230453e-4L, 2.294720936213991769547e-4L,  -4.691894943952557121281e-4L,
    2.677206320628388529623e-4L, -7.561801671883976410725e-5L, -2.396505113867296651933e-7L,
    1.108265411534730236148e-5L, -5.674952826991596567500e-6L, 1.423090073243588391455e-6L,
};
constexpr std::array kC4{
    -8.618882909167116986047e-4L, 7.840392217200666274740e-4L, -2.990724803031901797334e-4L,
    -1.463845257884341817812e-6L, 6.641498215465122186659e-5L, -3.968365047179434664431e-5L,
    1.137572697067841909806e-5L,
};
constexpr std::array kC5{
    -3.367985533663581503088e-4L,
    -6.972813758365857774294e-5L,
    2.772753244959392078734e-4L,
    -1.993257051618884770034e-4L,
};

template <std::size_t kTerms>
Extended Polynomial(const std::array<Extended, kTerms>& coefficients, Extended x) {
  Extended value = 0;
  for (std::size_t i = kTerms; i > 0; --i) value = value * x + coefficients[i - 1];
  return value;
}

}  // namespace

Tails UniformGammaTails(Extended shape, ExtendedPair x) {
  const Tail tail = x.hi < shape ? Tail::kLower : Tail::kUpper;
  const Extended side = tail == Tail::kLower ? -1 : 1;
  // The tail is that of a normal distribution at z, corrected; z^2 / 2 is shape (mu - ln(1 + mu)).
  const ExtendedPair half_square = x - shape - shape * Ln(x / shape);
  const ExtendedPair square{2 * half_square.hi, 2 * half_square.lo};
  const Extended root = std::sqrt(std::fmax(square.hi, 0));
  const Extended rest = root == 0 ? 0 : (square - ExactProduct(root, root)).hi / (2 * root);
  const ExtendedPair z = OrderedSum(root, rest);

  const Extended eta = side * root / std::sqrt(shape);
  const Extended a = 1 / shape;
  const Extended sum = Polynomial(kC0, eta) +
                       a * (Polynomial(kC1, eta) +
                            a * (Polynomial(kC2, eta) +
                                 a * (Polynomial(kC3, eta) +
                                      a * (Polynomial(kC4, eta) + a * Polynomial(kC5, eta)))));
  const elementary::Wide wide_z(z);
  const Scaled normal = NormalFarTail(wide_z);
  const Scaled density = NormalDensity(wide_z);
  const Extended correction = side * sum * (density / normal).Value() / std::sqrt(shape);
  return {tail, normal * Scaled(1 + correction)};
}

}  // namespace qorvex::special
