# How every file of the project is compiled.

include(CheckCXXCompilerFlag)

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

find_program(TALVEX_CCACHE ccache)
if(TALVEX_CCACHE)
    # What was compiled in one checkout serves the others, too.
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${PROJECT_SOURCE_DIR}
        CCACHE_NOHASHDIR=1 ${TALVEX_CCACHE})
endif()

add_library(talvex_compiler INTERFACE)

target_compile_options(talvex_compiler INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
    -Wnon-virtual-dtor -Woverloaded-virtual -Wzero-as-null-pointer-constant
    # The same bits everywhere: no fused multiply-add, and no rewriting of pow(2, x) into exp2(x).
    -ffp-contract=off -fno-builtin-pow)

# What people run stops at an overrun stack or buffer instead of running on. The sanitizers have
# checks of their own, and the library's need optimisation.
if(CMAKE_BUILD_TYPE STREQUAL "Release" AND NOT TALVEX_SANITIZE)
    foreach(flag IN ITEMS -fstack-protector-strong -fstack-clash-protection -fcf-protection)
        string(MAKE_C_IDENTIFIER "TALVEX_HAS${flag}" is_known)
        check_cxx_compiler_flag(${flag} ${is_known})
        if(${is_known})
            target_compile_options(talvex_compiler INTERFACE ${flag})
        endif()
    endforeach()
    target_compile_options(talvex_compiler INTERFACE -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
    target_link_options(talvex_compiler INTERFACE -Wl,-z,relro)
endif()

if(TALVEX_SANITIZE)
    set(talvex_sanitizers
        -fsanitize=address,undefined,float-cast-overflow -fno-sanitize-recover=all
        -fno-omit-frame-pointer)
    target_compile_options(talvex_compiler INTERFACE ${talvex_sanitizers})
    target_link_options(talvex_compiler INTERFACE ${talvex_sanitizers})
endif()

if(TALVEX_FUZZ)
    target_compile_options(talvex_compiler INTERFACE -fsanitize=fuzzer-no-link)
    target_link_options(talvex_compiler INTERFACE -fsanitize=fuzzer-no-link)
endif()
