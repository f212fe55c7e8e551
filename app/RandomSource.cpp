#include "app/RandomSource.h"

#include <algorithm>
#include <bit>
#include <chrono>
#include <random>
#include <utility>

namespace {

RandomGenerator::Seed Entropy()
{
    std::random_device device;
    RandomGenerator::Seed seed{};
    for (std::uint64_t& part : seed) {
        part = std::uint64_t{device()} << 32U | device();
    }
    return seed;
}

std::uint64_t SystemClock()
{
    return static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count());
}

/// Spreads every bit over all others, so that neighbouring ticks have nothing in common (the last step of the
/// generator SplitMix64).
std::uint64_t Spread(std::uint64_t bits)
{
    bits += 0x9E3779B97F4A7C15U;
    bits = (bits ^ (bits >> 30U)) * 0xBF58476D1CE4E5B9U;
    bits = (bits ^ (bits >> 27U)) * 0x94D049BB133111EBU;
    return bits ^ (bits >> 31U);
}

} // namespace

int RandomIndex(RandomSource& source, int count)
{
    source.ReseedFromClock();
    // In double the product is exact. In single a value just below 1 times the count could round up to it.
    return static_cast<int>(double{source.Next()} * count + 1);
}

RandomGenerator::RandomGenerator() : RandomGenerator(Entropy(), &SystemClock) {}

RandomGenerator::RandomGenerator(const Seed& seed, Clock clock) : m_state(seed), m_clock(std::move(clock))
{
    KeepStateAlive();
}

void RandomGenerator::KeepStateAlive()
{
    // From a state of all zeros the generator would never come away.
    if (std::all_of(m_state.cbegin(), m_state.cend(), [](std::uint64_t part) { return part == 0; })) {
        m_state.front() = 1;
    }
}

void RandomGenerator::ReseedFromClock()
{
    // Mixed into the state and not put in its place: whatever the clock says, a uniform state stays uniform,
    // and the same tick twice neither brings the same draw twice nor takes its own effect back.
    m_state.front() = Spread(m_state.front() ^ m_clock());
    KeepStateAlive();
}

std::uint64_t RandomGenerator::NextBits()
{
    const std::uint64_t bits = std::rotl(m_state[0] + m_state[3], 23) + m_state[0];
    const std::uint64_t shifted = m_state[1] << 17U;
    m_state[2] ^= m_state[0];
    m_state[3] ^= m_state[1];
    m_state[1] ^= m_state[2];
    m_state[0] ^= m_state[3];
    m_state[2] ^= shifted;
    m_state[3] = std::rotl(m_state[3], 45);
    return bits;
}

float RandomGenerator::Next()
{
    // As many bits as a single holds, so that nothing is rounded and 1 cannot come.
    constexpr unsigned kBits = 24;
    constexpr float kUnit = 1.0F / (1U << kBits);
    return static_cast<float>(NextBits() >> (64U - kBits)) * kUnit;
}
