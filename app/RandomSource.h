#pragma once

#include <array>
#include <cstdint>
#include <functional>

/// Where sets get their luck from. Tests put a source of their own in its place.
class RandomSource
{
public:
    virtual ~RandomSource() = default;

    /// Mixes the clock into the source's state; it does not start anew.
    virtual void ReseedFromClock() = 0;

    /// A single, uniform from 0 up to but without 1.
    [[nodiscard]] virtual float Next() = 0;

protected:
    RandomSource() = default;
    RandomSource(const RandomSource&) = default;
    RandomSource(RandomSource&&) = default;
    RandomSource& operator=(const RandomSource&) = default;
    RandomSource& operator=(RandomSource&&) = default;
};

/// An index 1..count, each as likely as any other: the source is reseeded from the clock, then asked once.
/// @param count  1 or more
[[nodiscard]] int RandomIndex(RandomSource& source, int count);

/// The program's random source: the generator xoshiro256++, seeded from the system's entropy, into whose
/// state the clock is mixed. Draws within one tick of the clock differ all the same.
class RandomGenerator : public RandomSource
{
public:
    using Seed = std::array<std::uint64_t, 4>;
    using Clock = std::function<std::uint64_t()>; ///< any count that goes on with time

    /// Seeded from the system's entropy, with the system's clock.
    RandomGenerator();

    /// For tests, which want the same draws every time.
    RandomGenerator(const Seed& seed, Clock clock);

    void ReseedFromClock() override;
    [[nodiscard]] float Next() override;

private:
    [[nodiscard]] std::uint64_t NextBits();
    void KeepStateAlive();

    Seed m_state;
    Clock m_clock;
};
