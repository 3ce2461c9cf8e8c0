#include "processing/TraceFilters.h"

#include "base/Console.h"
#include "base/TextNumber.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <iomanip>
#include <limits>
#include <locale>
#include <memory>
#include <numeric>
#include <sstream>
#include <type_traits>

// Declares functions of C's complex type, so it stays out of every header of ours.
#include <liquid/liquid.h>

namespace talvesk {
namespace {

constexpr float kPassBandRipple = 1.0F;  // dB; a Butterworth design uses neither
constexpr float kStopBandLoss = 30.0F;   // dB

Status toSinglePrecision(Span<double> in, std::vector<float>& out) {
  constexpr double kLargest = std::numeric_limits<float>::max();
  out.clear();
  out.reserve(in.size());
  for (const double sample : in) {
    if (!(std::fabs(sample) <= kLargest)) {
      return Status::failure(
          Message::tr("sample %1 is %2, which no filter can take").arg(out.size()).arg(sample));
    }
    out.push_back(static_cast<float>(sample));
  }
  return {};
}

Status handOut(const std::vector<float>& result, std::vector<double>& out) {
  for (const float sample : result) {
    if (!std::isfinite(sample)) {
      return Status::failure(
          Message::tr("the result does not fit single precision; scale the samples down"));
    }
  }
  out.assign(result.begin(), result.end());
  return {};
}

/// A second-order section: numerator and denominator in rising powers of the unit delay.
struct Section {
  std::array<float, 3> b;
  std::array<float, 3> a;
};

std::vector<Section> designOf(liquid_iirdes_bandtype band, int order, float fc) {
  const auto count = static_cast<std::size_t>(order - order / 2);
  std::vector<float> b(3 * count);
  std::vector<float> a(3 * count);
  liquid_iirdes(LIQUID_IIRDES_BUTTER, band, LIQUID_IIRDES_SOS, static_cast<unsigned>(order), fc,
                0.0F, kPassBandRipple, kStopBandLoss, b.data(), a.data());
  std::vector<Section> sections;
  for (std::size_t i = 0; i < 3 * count; i += 3) {
    sections.push_back({{b[i], b[i + 1], b[i + 2]}, {a[i], a[i + 1], a[i + 2]}});
  }
  return sections;
}

/// Both poles inside the unit circle, see e.g. the stability triangle of a second-order recursion.
bool isStable(const Section& section) {
  const double a1 = section.a[1] / static_cast<double>(section.a[0]);
  const double a2 = section.a[2] / static_cast<double>(section.a[0]);
  return std::fabs(a2) < 1.0 && std::fabs(a1) < 1.0 + a2;
}

/// Gain in the middle of the pass band: at frequency 0, or at half the sample rate.
double passBandGain(const std::vector<Section>& sections, liquid_iirdes_bandtype band) {
  const double delayed = band == LIQUID_IIRDES_LOWPASS ? 1.0 : -1.0;
  const auto at = [delayed](const std::array<float, 3>& c) {
    return double{c[0]} + delayed * double{c[1]} + double{c[2]};
  };
  double gain = 1.0;
  for (const Section& section : sections) gain *= at(section.b) / at(section.a);
  return std::fabs(gain);
}

bool isSound(const std::vector<Section>& sections, liquid_iirdes_bandtype band) {
  for (const Section& section : sections) {
    if (!isStable(section)) return false;
  }
  const double gain = passBandGain(sections, band);
  return gain > 0.5 && gain < 2.0;
}

/// What the library's own print function writes, but to the console: a program whose standard
/// output is data can send it elsewhere, and no locale changes the numbers.
void describe(const std::vector<Section>& sections) {
  std::ostringstream text;
  text.imbue(std::locale::classic());
  text << std::fixed << std::setprecision(8) << "iir filter [sos]:\n";
  const auto row = [&text](char name, const std::array<float, 3>& c) {
    text << "  " << name << " : " << std::setw(12) << c[0] << ',' << std::setw(12) << c[1] << ','
         << std::setw(12) << c[2] << '\n';
  };
  for (const Section& section : sections) {
    text << "iir filter | sos:\n";
    row('b', section.b);
    row('a', section.a);
  }
  console::out() << text.str();
}

/// What the library would say on the standard error stream, and go on with a filter of NaNs.
Status checkDesign(int order, double fc) {
  if (order < 1) {
    return Status::failure(Message::tr("No filter applied. Filter order must be greater then 0."));
  }
  if (order > kMaxFilterOrder) {
    return Status::failure(
        Message::tr("No filter applied. Filter order %1 is above the limit of %2.")
            .arg(order)
            .arg(kMaxFilterOrder));
  }
  // Just below the limit a number may round up to it.
  const auto single = static_cast<float>(fc);
  if (!(single > 0.0F && single < 0.5F)) {
    return Status::failure(Message::tr("No filter applied. The cut-off is %1 of the sample rate; "
                                       "it must be above 0 and below 0.5.")
                               .arg(fc));
  }
  return {};
}

using Filter =
    std::unique_ptr<std::remove_pointer_t<iirfilt_rrrf>, decltype(&iirfilt_rrrf_destroy)>;
using Agc = std::unique_ptr<std::remove_pointer_t<agc_rrrf>, decltype(&agc_rrrf_destroy)>;

Status butterworth(Span<double> in, liquid_iirdes_bandtype band, int order, double fc,
                   std::vector<double>& out) {
  Status status = checkDesign(order, fc);
  if (!status.ok()) return status;
  const auto cutOff = static_cast<float>(fc);
  const std::vector<Section> sections = designOf(band, order, cutOff);
  if (!isSound(sections, band)) {
    return Status::failure(
        Message::tr("No filter applied. Single precision cannot hold a filter of order %1 with a "
                    "cut-off of %2 of the sample rate; choose a lower order or a cut-off nearer to "
                    "the middle of the range.")
            .arg(order)
            .arg(fc));
  }
  std::vector<float> samples;
  status = toSinglePrecision(in, samples);
  if (!status.ok()) return status;
  const Filter filter(iirfilt_rrrf_create_prototype(LIQUID_IIRDES_BUTTER, band, LIQUID_IIRDES_SOS,
                                                    static_cast<unsigned>(order), cutOff, 0.0F,
                                                    kPassBandRipple, kStopBandLoss),
                      iirfilt_rrrf_destroy);
  if (!filter) {
    return Status::failure(Message::tr("No filter applied. The filter cannot be created."));
  }
  describe(sections);
  for (float& sample : samples) iirfilt_rrrf_execute(filter.get(), sample, &sample);
  return handOut(samples, out);
}

/// Where the energy of a trace overflows, the gain would be 0 and the result silence.
bool energyFits(const std::vector<float>& samples) {
  const double energy =
      std::accumulate(samples.begin(), samples.end(), 0.0,
                      [](double sum, float x) { return sum + double{x} * double{x}; });
  return energy < std::numeric_limits<float>::max();
}

}  // namespace

Status agcTrace(Span<double> in, std::vector<double>& out) {
  std::vector<float> samples;
  const Status status = toSinglePrecision(in, samples);
  if (!status.ok()) return status;
  if (samples.empty()) {
    out.clear();
    return {};
  }
  if (!energyFits(samples)) {
    return Status::failure(
        Message::tr("the energy of the samples does not fit single precision; scale them down"));
  }
  const auto count = static_cast<unsigned>(samples.size());
  std::vector<float> result(samples.size());
  const Agc agc(agc_rrrf_create(), agc_rrrf_destroy);
  agc_rrrf_init(agc.get(), samples.data(), count);
  agc_rrrf_squelch_enable(agc.get());
  agc_rrrf_execute_block(agc.get(), samples.data(), count, result.data());
  return handOut(result, out);
}

Status highPass(Span<double> in, int order, double fc, std::vector<double>& out) {
  return butterworth(in, LIQUID_IIRDES_HIGHPASS, order, fc, out);
}

Status lowPass(Span<double> in, int order, double fc, std::vector<double>& out) {
  return butterworth(in, LIQUID_IIRDES_LOWPASS, order, fc, out);
}

}  // namespace talvesk
