#include "ColumnReduction.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>
#include <vector>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace BatchServer {

namespace {

double Lanczos(double x)
{
    constexpr double lobes = 3.0;
    constexpr double pi = 3.14159265358979323846;
    if (x == 0.0) {
        return 1.0;
    }
    return std::abs(x) < lobes ? lobes * std::sin(pi * x) * std::sin(pi * x / lobes) / (pi * pi * x * x) : 0.0;
}

/// Which old columns make a new one: `taps` of them, from firsts[column] on. Their weights add up to one.
struct ColumnPlan
{
    ColumnPlan(int oldWidth, int newWidth);

    void AppendWeights(const std::vector<double>& exact);

    int taps;
    std::vector<int> firsts;
    std::vector<float> weights; ///< `taps` for each new column

    /// The same as whole numbers of 16 bits, two by two, the first of the two below; behind an odd number comes a 0.
    static constexpr int wholeBits = 14;
    int pairs;
    std::vector<std::uint32_t> weightPairs; ///< `pairs` for each new column
};

ColumnPlan::ColumnPlan(int oldWidth, int newWidth)
{
    const double factor = double(oldWidth) / newWidth;
    const double radius = 3.0 * factor;
    const int reach = int(std::floor(2.0 * radius)) + 1;
    taps = std::min(reach, oldWidth);
    pairs = (taps + 1) / 2;
    for (int column = 0; column < newWidth; ++column) {
        const double middle = (column + 0.5) * factor - 0.5;
        const int start = int(std::ceil(middle - radius));
        firsts.push_back(std::clamp(start, 0, oldWidth - taps));
        std::vector<double> exact(std::size_t(taps), 0.0);
        double sum = 0.0;
        for (int old = start; old < start + reach; ++old) {
            const double weight = Lanczos((old - middle) / factor);
            exact[std::size_t(std::clamp(old, 0, oldWidth - 1) - firsts.back())] += weight;
            sum += weight;
        }
        for (double& weight : exact) {
            weight /= sum;
        }
        AppendWeights(exact);
    }
}

void ColumnPlan::AppendWeights(const std::vector<double>& exact)
{
    weights.insert(weights.end(), exact.begin(), exact.end());
    // What rounding takes from one the next one gets: their sum stays, however small they are.
    std::vector<int> whole(std::size_t(2 * pairs), 0);
    double rest = 0.0;
    for (std::size_t tap = 0; tap < exact.size(); ++tap) {
        const double wanted = exact[tap] * (1 << wholeBits) + rest;
        whole[tap] = int(std::lround(wanted));
        rest = wanted - whole[tap];
    }
    for (std::size_t tap = 0; tap < whole.size(); tap += 2) {
        weightPairs.push_back(std::uint32_t(std::uint16_t(whole[tap])) | std::uint32_t(whole[tap + 1]) << 16);
    }
}

constexpr int bandsAtOnce = 4;

template<typename Sample>
Sample SampleOf(float value)
{
    if constexpr (std::is_floating_point_v<Sample>) {
        return value;
    } else {
        constexpr float largest = std::numeric_limits<Sample>::max();
        return Sample(int(std::min(std::max(value, 0.0F), largest) + 0.5F));
    }
}

/// Reduces a line of pixels, `count` bands of each.
template<typename SampleType, int count>
class LineReduction
{
public:
    using Sample = SampleType;

    explicit LineReduction(int columns)
        : pixels(std::size_t(columns))
    {
    }

    /// `from` is the first of the old columns, the next ones follow at a distance of `step` samples.
    void Take(const Sample* from, int step)
    {
        for (Pixel& pixel : pixels) {
            pixel = Pixel{};
            for (int band = 0; band < count; ++band) {
                pixel[band] = float(from[band]);
            }
            from += step;
        }
    }

    /// Writes the new column `column` of the plan to `to`; `first` is the place of its first old one in the line.
    void Give(const ColumnPlan& plan, int column, int first, Sample* to) const
    {
        const float* const weights = &plan.weights[std::size_t(column) * std::size_t(plan.taps)];
        const Pixel* const old = &pixels[std::size_t(first)];
        Pixel sum{};
        for (int tap = 0; tap < plan.taps; ++tap) {
            sum += weights[tap] * old[tap];
        }
        for (int band = 0; band < count; ++band) {
            to[band] = SampleOf<Sample>(sum[band]);
        }
    }

private:
    /// What the processor takes at a time.
    using Pixel = float __attribute__((vector_size(bandsAtOnce * sizeof(float))));

    std::vector<Pixel> pixels;
};

#ifdef __SSE2__
/// The same for 8 bits, where whole numbers do: the processor multiplies and adds up two pixels in one step.
template<int count>
class LineReduction<std::uint8_t, count>
{
public:
    using Sample = std::uint8_t;

    explicit LineReduction(int columns)
        : neighbours(std::size_t(columns))
    {
    }

    void Take(const Sample* from, int step)
    {
        const __m128i zero = _mm_setzero_si128();
        __m128i pixel = Widened(from);
        for (std::size_t column = 0; column + 1 < neighbours.size(); ++column) {
            from += step;
            const __m128i next = Widened(from);
            neighbours[column].values = _mm_unpacklo_epi16(pixel, next);
            pixel = next;
        }
        neighbours.back().values = _mm_unpacklo_epi16(pixel, zero);
    }

    void Give(const ColumnPlan& plan, int column, int first, Sample* to) const
    {
        const std::uint32_t* const weights = &plan.weightPairs[std::size_t(column) * std::size_t(plan.pairs)];
        const Neighbours* const old = &neighbours[std::size_t(first)];
        __m128i sum = _mm_set1_epi32(1 << (ColumnPlan::wholeBits - 1));
        for (int pair = 0; pair < plan.pairs; ++pair) {
            const __m128i weightPair = _mm_set1_epi32(int(weights[pair]));
            sum = _mm_add_epi32(sum, _mm_madd_epi16(old[2 * pair].values, weightPair));
        }
        const __m128i zero = _mm_setzero_si128();
        const __m128i rounded = _mm_srai_epi32(sum, ColumnPlan::wholeBits);
        const int bytes = _mm_cvtsi128_si32(_mm_packus_epi16(_mm_packs_epi32(rounded, zero), zero));
        std::memcpy(to, &bytes, count);
    }

private:
    static __m128i Widened(const Sample* pixel)
    {
        unsigned bytes = 0;
        for (int band = 0; band < count; ++band) {
            bytes |= unsigned(pixel[band]) << (8 * band);
        }
        return _mm_unpacklo_epi8(_mm_cvtsi32_si128(int(bytes)), _mm_setzero_si128());
    }

    /// A pixel and the one to the right of it, band by band.
    struct Neighbours
    {
        __m128i values;
    };

    std::vector<Neighbours> neighbours;
};
#endif

/// Reduces some bands, from `band` on, of the area that `output` asks for.
template<typename Line>
void ReduceBands(const ColumnPlan& plan, VipsRegion* input, VipsRegion* output, int band)
{
    using Sample = typename Line::Sample;
    const VipsRect& area = output->valid;
    const int bands = output->im->Bands;
    const int firstOld = plan.firsts[std::size_t(area.left)];
    const int endOld = plan.firsts[std::size_t(VIPS_RECT_RIGHT(&area) - 1)] + plan.taps;
    Line line(endOld - firstOld);
    for (int y = area.top; y < VIPS_RECT_BOTTOM(&area); ++y) {
        line.Take(reinterpret_cast<const Sample*>(VIPS_REGION_ADDR(input, firstOld, y)) + band, bands);
        auto* to = reinterpret_cast<Sample*>(VIPS_REGION_ADDR(output, area.left, y)) + band;
        for (int x = area.left; x < VIPS_RECT_RIGHT(&area); ++x) {
            line.Give(plan, x, plan.firsts[std::size_t(x)] - firstOld, to);
            to += bands;
        }
    }
}

template<typename Sample>
void Reduce(const ColumnPlan& plan, VipsRegion* input, VipsRegion* output)
{
    const int bands = output->im->Bands;
    for (int band = 0; band < bands; band += bandsAtOnce) {
        switch (std::min(bands - band, bandsAtOnce)) {
        case 1:
            ReduceBands<LineReduction<Sample, 1>>(plan, input, output, band);
            break;
        case 2:
            ReduceBands<LineReduction<Sample, 2>>(plan, input, output, band);
            break;
        case 3:
            ReduceBands<LineReduction<Sample, 3>>(plan, input, output, band);
            break;
        default:
            ReduceBands<LineReduction<Sample, bandsAtOnce>>(plan, input, output, band);
            break;
        }
    }
}

int Generate(VipsRegion* output, void* sequence, void*, void* client, gboolean*)
{
    const auto& plan = *static_cast<const ColumnPlan*>(client);
    auto* const input = static_cast<VipsRegion*>(sequence);
    const VipsRect& area = output->valid;
    const int first = plan.firsts[std::size_t(area.left)];
    const int end = plan.firsts[std::size_t(VIPS_RECT_RIGHT(&area) - 1)] + plan.taps;
    const VipsRect needed{first, area.top, end - first, area.height};
    if (vips_region_prepare(input, &needed) != 0) {
        return -1;
    }
    switch (output->im->BandFmt) {
    case VIPS_FORMAT_UCHAR:
        Reduce<std::uint8_t>(plan, input, output);
        break;
    case VIPS_FORMAT_USHORT:
        Reduce<std::uint16_t>(plan, input, output);
        break;
    default:
        Reduce<float>(plan, input, output);
        break;
    }
    return 0;
}

void DeletePlan(void* plan)
{
    delete static_cast<ColumnPlan*>(plan);
}

} // namespace

Picture WithFewerColumns(const Picture& picture, int width)
{
    VipsImage* const input = picture.get_image();
    VipsImage* const output = vips_image_new();
    const Picture reduced(output);
    // The output reads from its input as long as it lives.
    g_object_ref(input);
    vips_object_local(output, input);
    auto* const plan = new ColumnPlan(picture.width(), width);
    g_object_set_data_full(G_OBJECT(output), "column-plan", plan, DeletePlan);
    if (vips_image_pipelinev(output, VIPS_DEMAND_STYLE_FATSTRIP, input, nullptr) != 0) {
        throw vips::VError();
    }
    output->Xsize = width;
    if (vips_image_generate(output, vips_start_one, Generate, vips_stop_one, input, plan) != 0) {
        throw vips::VError();
    }
    return reduced;
}

} // namespace BatchServer
