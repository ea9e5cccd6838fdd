#include "apps/qorvex-gallery/model/names.h"

#include <QCoreApplication>
#include <utility>

#include "apps/qorvex-gallery/model/texts.h"

namespace qorvex::gallery {

namespace {

constexpr std::pair<const char*, const char*> kNames[] = {
    {"normal", QT_TRANSLATE_NOOP("Catalogue", "Normal")},
    {"log-normal", QT_TRANSLATE_NOOP("Catalogue", "Log-normal")},
    {"exponential", QT_TRANSLATE_NOOP("Catalogue", "Exponential")},
    {"gamma", QT_TRANSLATE_NOOP("Catalogue", "Gamma")},
    {"chi-square", QT_TRANSLATE_NOOP("Catalogue", "Chi-square")},
    {"student-t", QT_TRANSLATE_NOOP("Catalogue", "Student's t")},
    {"f", QT_TRANSLATE_NOOP("Catalogue", "F")},
    {"beta", QT_TRANSLATE_NOOP("Catalogue", "Beta")},
    {"uniform", QT_TRANSLATE_NOOP("Catalogue", "Uniform")},
    {"weibull", QT_TRANSLATE_NOOP("Catalogue", "Weibull")},
    {"gumbel", QT_TRANSLATE_NOOP("Catalogue", "Gumbel")},
    {"logistic", QT_TRANSLATE_NOOP("Catalogue", "Logistic")},
    {"cauchy", QT_TRANSLATE_NOOP("Catalogue", "Cauchy")},
    {"von-mises", QT_TRANSLATE_NOOP("Catalogue", "Von Mises")},
    {"generalised-inverse-gaussian",
     QT_TRANSLATE_NOOP("Catalogue", "Generalised inverse Gaussian")},
    {"inverse-gaussian", QT_TRANSLATE_NOOP("Catalogue", "Generalised inverse Gaussian")},
    {"binomial", QT_TRANSLATE_NOOP("Catalogue", "Binomial")},
    {"hypergeometric", QT_TRANSLATE_NOOP("Catalogue", "Hypergeometric")},
    {"poisson", QT_TRANSLATE_NOOP("Catalogue", "Poisson")},
    {"geometric", QT_TRANSLATE_NOOP("Catalogue", "Geometric")},
    {"negative-binomial", QT_TRANSLATE_NOOP("Catalogue", "Negative binomial")},
};

}  // namespace

QString DisplayName(const char* name) {
  for (const auto& [key, text] : kNames)
    if (QLatin1String(key) == QLatin1String(name)) return Translated(text);
  return Title(QString::fromUtf8(name));
}

QString Translated(const char* text) {
  return QCoreApplication::translate("Catalogue", text);
}

}  // namespace qorvex::gallery
