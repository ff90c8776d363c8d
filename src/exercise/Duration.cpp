#include "exercise/Duration.h"

namespace duration {

namespace {

// Two's-complement products and sums, as the hardware computes them.
int64_t wrappingProduct(int64_t a, int64_t b) {
    return static_cast<int64_t>(static_cast<uint64_t>(a) * static_cast<uint64_t>(b));
}

int32_t wrapping32(int64_t value) {
    return static_cast<int32_t>(static_cast<uint32_t>(value));
}

}  // namespace

int64_t hoursCalories(int64_t hours, int64_t perHour) {
    return wrappingProduct(hours, perHour);
}

int64_t minutesCalories(int64_t minutes, int64_t perHour) {
    return wrappingProduct(minutes, perHour / 60);
}

int64_t total(int64_t hoursShare, int64_t minutesShare) {
    return static_cast<int64_t>(static_cast<uint64_t>(hoursShare) +
                                static_cast<uint64_t>(minutesShare));
}

void book(int32_t calories, int32_t& burnedValue, int32_t& consumedValue) {
    burnedValue = wrapping32(int64_t{burnedValue} + calories);
    consumedValue = wrapping32(int64_t{consumedValue} - calories);
}

}  // namespace duration
