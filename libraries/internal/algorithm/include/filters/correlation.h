#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <utility>
#include <vector>

/// Weighted sums of a sliding window, in forms that differ in speed and in nothing else.
///
/// Every output is one sum that starts at 0 and takes its terms in ascending order of the weights. The
/// wide forms keep many such sums going side by side, so each form gives the same bits.
namespace algo::filter {

/// How the sums are computed; the wide forms need a processor that has them.
enum class VectorForm {
    plain,    ///< one sum after the other, with a test of both edges at every sample
    baseline, ///< two lanes, on every processor
    avx2,     ///< four lanes
    avx512    ///< eight lanes
};

namespace detail {

#if defined(__GNUC__) && defined(__x86_64__)
#define ALGO_HAS_X86_FORMS 1
#else
#define ALGO_HAS_X86_FORMS 0
#endif

inline void correlatePlain(const std::vector<double>& mask, std::int32_t start, const std::vector<double>& in,
                           std::vector<double>& out) {
    const auto n = static_cast<std::int64_t>(in.size());
    const auto weights = static_cast<std::int64_t>(mask.size());
    for (std::int64_t i = 0; i < n; ++i) {
        double sum = 0.0;
        for (std::int64_t j = 0; j < weights; ++j) {
            const std::int64_t k = start + j + i;
            const std::int64_t sample = k < 0 ? 0 : (k >= n ? n - 1 : k);
            sum += mask[static_cast<std::size_t>(j)] * in[static_cast<std::size_t>(sample)];
        }
        out[static_cast<std::size_t>(i)] = sum;
    }
}

/// `count` samples from index `start` on, with the end samples standing in past either end.
inline std::vector<double> padded(const std::vector<double>& in, std::int32_t start, std::size_t count) {
    std::vector<double> samples(count, in.back());
    const auto before = static_cast<std::size_t>(std::max<std::int64_t>(0, -std::int64_t{start}));
    if (before >= count) {
        std::fill(samples.begin(), samples.end(), in.front());
        return samples;
    }
    std::fill_n(samples.begin(), before, in.front());
    const auto skipped = static_cast<std::size_t>(std::max<std::int64_t>(0, start));
    if (skipped < in.size()) {
        const std::size_t inside = std::min(in.size() - skipped, count - before);
        std::copy_n(in.data() + skipped, inside, samples.data() + before);
    }
    return samples;
}

/// One number per lane, aligned for whole loads.
template <std::size_t lanes>
struct alignas(lanes * sizeof(double)) Column {
    double lane[lanes];
};

template <std::size_t lanes>
using Register [[gnu::vector_size(lanes * sizeof(double))]] = double;

/// Adds `count` weighted samples to sums that stand `stride` columns apart, each lane by lane. The sums
/// stay in registers; sums of neighbouring columns would share samples, and compilers then spend more
/// on moving those from register to register than on reading them again.
template <std::size_t lanes, std::size_t... sum>
[[gnu::always_inline]] inline void addWeighted(const double* weights, std::size_t count,
                                               const Column<lanes>* columns, Column<lanes>* totals,
                                               std::size_t stride, std::index_sequence<sum...>) {
    Register<lanes> sums[sizeof...(sum)];
    (std::memcpy(&sums[sum], &totals[sum * stride], sizeof(sums[sum])), ...);
    for (std::size_t j = 0; j < count; ++j) {
        Register<lanes> samples[sizeof...(sum)];
        (std::memcpy(&samples[sum], &columns[j + sum * stride], sizeof(samples[sum])), ...);
        ((sums[sum] += samples[sum] * weights[j]), ...);
    }
    (std::memcpy(&totals[sum * stride], &sums[sum], sizeof(sums[sum])), ...);
}

/// Lane `l` computes a stretch of the outputs of its own, from `l * stretch` on. In columns across the
/// stretches, neighbouring outputs meet neighbouring columns, so all reads are whole and aligned.
template <std::size_t lanes, std::size_t sums>
[[gnu::always_inline]] inline void correlateWide(const std::vector<double>& mask, std::int32_t start,
                                                 const std::vector<double>& in, std::vector<double>& out) {
    constexpr std::size_t weightsPerPass = 512; // keeps the columns of a usual signal in the first cache
    const std::size_t n = in.size();
    const std::size_t stride = (n + lanes * sums - 1) / (lanes * sums);
    const std::size_t stretch = stride * sums;
    const std::vector<double> samples = padded(in, start, lanes * stretch + mask.size());
    std::vector<Column<lanes>> totals(stretch, Column<lanes>{});
    std::vector<Column<lanes>> columns(stretch + std::min(mask.size(), weightsPerPass));
    for (std::size_t first = 0; first < mask.size(); first += weightsPerPass) {
        const std::size_t count = std::min(mask.size() - first, weightsPerPass);
        for (std::size_t l = 0; l < lanes; ++l) {
            const double* const stretchStart = samples.data() + l * stretch + first;
            for (std::size_t t = 0; t < stretch + count; ++t) {
                columns[t].lane[l] = stretchStart[t];
            }
        }
        for (std::size_t i = 0; i < stride; ++i) {
            addWeighted<lanes>(mask.data() + first, count, &columns[i], &totals[i], stride,
                               std::make_index_sequence<sums>());
        }
    }
    for (std::size_t l = 0; l < lanes; ++l) {
        for (std::size_t t = 0; t < stretch && l * stretch + t < n; ++t) {
            out[l * stretch + t] = totals[t].lane[l];
        }
    }
}

inline void correlateBaseline(const std::vector<double>& mask, std::int32_t start,
                              const std::vector<double>& in, std::vector<double>& out) {
    correlateWide<2, 8>(mask, start, in, out);
}

#if ALGO_HAS_X86_FORMS
[[gnu::target("avx2")]] inline void correlateAvx2(const std::vector<double>& mask, std::int32_t start,
                                                  const std::vector<double>& in, std::vector<double>& out) {
    correlateWide<4, 8>(mask, start, in, out);
}

[[gnu::target("avx512f")]] inline void correlateAvx512(const std::vector<double>& mask, std::int32_t start,
                                                       const std::vector<double>& in,
                                                       std::vector<double>& out) {
    correlateWide<8, 8>(mask, start, in, out);
}
#endif

} // namespace detail

/// Whether this processor can run a form.
inline bool supports(VectorForm form) {
#if ALGO_HAS_X86_FORMS
    if (form == VectorForm::avx2) {
        return static_cast<bool>(__builtin_cpu_supports("avx2"));
    }
    if (form == VectorForm::avx512) {
        return static_cast<bool>(__builtin_cpu_supports("avx512f"));
    }
#endif
    return form == VectorForm::plain || form == VectorForm::baseline;
}

/// The widest form that this processor can run.
inline VectorForm fastestVectorForm() {
    if (supports(VectorForm::avx512)) {
        return VectorForm::avx512;
    }
    return supports(VectorForm::avx2) ? VectorForm::avx2 : VectorForm::baseline;
}

/// Sets `out[i]` to the sum over `j` of `mask[j] * in[i + start + j]`, for every sample of `in`; past
/// either end, the end sample stands in. `in` and `out` have one length, and `form` is supported.
inline void correlate(VectorForm form, const std::vector<double>& mask, std::int32_t start,
                      const std::vector<double>& in, std::vector<double>& out) {
    if (in.empty()) {
        return;
    }
    switch (form) {
    case VectorForm::plain:
        detail::correlatePlain(mask, start, in, out);
        return;
#if ALGO_HAS_X86_FORMS
    case VectorForm::avx2:
        detail::correlateAvx2(mask, start, in, out);
        return;
    case VectorForm::avx512:
        detail::correlateAvx512(mask, start, in, out);
        return;
#endif
    default:
        detail::correlateBaseline(mask, start, in, out);
    }
}

} // namespace algo::filter
