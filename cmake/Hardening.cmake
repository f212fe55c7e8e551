# What makes a fault in the program harder to use against its user, for everything that links quillaby_options: optimised
# builds get what their compiler and linker know. Builds under sanitizers get none of it, as the sanitizers see more and
# do not go together with it. packaging/check-hardening looks at the result.
include(CheckCXXCompilerFlag)
include(CheckCXXSourceCompiles)
include(CheckLinkerFlag)
include(CheckPIESupported)

set(QUILLABY_HARDENED "$<CONFIG:Release,RelWithDebInfo,MinSizeRel>")

# A flag goes to the compiler when it knows it, and to nobody otherwise.
function(quillaby_harden_compiler)
  foreach(flag IN LISTS ARGN)
    string(MAKE_C_IDENTIFIER "QUILLABY_COMPILER_HAS${flag}" known)
    check_cxx_compiler_flag("${flag}" ${known})
    if(${known})
      target_compile_options(quillaby_options INTERFACE "$<${QUILLABY_HARDENED}:${flag}>")
    endif()
  endforeach()
endfunction()

function(quillaby_harden_linker)
  foreach(flag IN LISTS ARGN)
    string(MAKE_C_IDENTIFIER "QUILLABY_LINKER_HAS${flag}" known)
    check_linker_flag(CXX "${flag}" ${known})
    if(${known})
      target_link_options(quillaby_options INTERFACE "$<${QUILLABY_HARDENED}:${flag}>")
    endif()
  endforeach()
endfunction()

# Copies and prints whose bounds the C library knows: the strictest level that library and compiler share.
function(quillaby_fortify)
  foreach(level 3 2)
    set(CMAKE_REQUIRED_FLAGS "-O2 -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=${level} -Werror")
    check_cxx_source_compiles("#include <cstdio>
                               #if defined(__USE_FORTIFY_LEVEL) && __USE_FORTIFY_LEVEL < ${level}
                               #error a weaker level
                               #endif
                               int main() {}" QUILLABY_FORTIFY_${level})
    if(QUILLABY_FORTIFY_${level})
      # Some systems' compilers define a level by themselves.
      target_compile_options(quillaby_options INTERFACE "$<${QUILLABY_HARDENED}:-U_FORTIFY_SOURCE>"
                                                        "$<${QUILLABY_HARDENED}:-D_FORTIFY_SOURCE=${level}>")
      return()
    endif()
  endforeach()
endfunction()

# Loaded at an address that nobody knows beforehand.
check_pie_supported(LANGUAGES CXX)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

if(MSVC)
  target_compile_options(quillaby_options INTERFACE "$<${QUILLABY_HARDENED}:/sdl>" "$<${QUILLABY_HARDENED}:/guard:cf>")
  quillaby_harden_linker(LINKER:/guard:cf LINKER:/DYNAMICBASE LINKER:/HIGHENTROPYVA LINKER:/NXCOMPAT LINKER:/CETCOMPAT)
else()
  quillaby_fortify()
  quillaby_harden_compiler(-fstack-protector-strong -fstack-clash-protection)
  if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|AMD64|amd64|i[3-6]86)$")
    quillaby_harden_compiler(-fcf-protection=full)
  elseif(CMAKE_SYSTEM_PROCESSOR MATCHES "^(aarch64|arm64)$")
    quillaby_harden_compiler(-mbranch-protection=standard)
  endif()
  if(NOT APPLE AND NOT WIN32)
    quillaby_harden_linker(LINKER:-z,relro LINKER:-z,now LINKER:-z,noexecstack LINKER:-z,separate-code)
  endif()
endif()
