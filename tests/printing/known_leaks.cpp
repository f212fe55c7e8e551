// Memory that libraries outside our reach never give back, so that the leak checker of the sanitizers does
// not report it. One line for each, with its library.
extern "C" const char* __lsan_default_suppressions();

extern "C" const char* __lsan_default_suppressions()
{
    // libcups 2.4.2 when the toolkit's own printing asks for the default printer's description
    return "leak:_ppdCacheCreateWithPPD\n";
}
