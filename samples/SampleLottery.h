#pragma once

#include "app/DrawDatabase.h"

/// The sample database that comes with the program: a made-up 6/49 lottery with 1,200 draws, one each
/// Wednesday and Saturday from 7 January 2015 on. The same on every machine and in every run.
[[nodiscard]] DrawDatabase SampleLottery();
