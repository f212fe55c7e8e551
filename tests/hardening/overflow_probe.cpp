// Does what a program must never do, to show that one of ours does not get far with it. Built as the program
// is.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>

namespace {

constexpr int kRoom = 16;

/// Beyond the end of an array by a function of the C library.
void Copy(const char* text, std::size_t length)
{
    char room[kRoom];
    std::memcpy(room, text, length);
    std::printf("copied %.4s\n", room);
}

/// Beyond the end of an array by code of our own, as far as the way back to the caller.
[[gnu::noinline]] void Fill(std::size_t length)
{
    char room[kRoom] = {};
    char* volatile place = room; // volatile, or the compiler stops where the array ends
    for (std::size_t i = 0; i < length; ++i) {
        place[i] = 'x';
    }
    std::printf("filled %c\n", room[0]);
}

} // namespace

/// Usage: overflow_probe copy|fill NUMBER    with room for 16
int main(int argc, char* argv[])
{
    if (argc != 3) {
        return 2;
    }
    const std::string_view what = argv[1];
    const auto number = static_cast<std::size_t>(std::atoi(argv[2]));
    if (what == "copy") {
        static const char text[64] = "sixteen letters and then some more";
        Copy(text, number);
    } else if (what == "fill") {
        Fill(number);
    }
    return 0;
}
