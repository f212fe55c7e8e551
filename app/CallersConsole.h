#pragma once

/// Lets what is printed appear in the console that the program was started from. A program with windows has
/// none of its own on Windows; elsewhere there is nothing to do. What goes to a file or another program still
/// goes there.
void UseCallersConsole();
