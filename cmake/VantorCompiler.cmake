# Compiler settings that every target shares.

set(CMAKE_CXX_FLAGS_DEV "-O1 -g1")
if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Dev CACHE STRING "Build type" FORCE)
endif()

set(VANTOR_SANITIZE "" CACHE STRING "Sanitizers, as the compiler's -fsanitize takes them; empty for none")

find_program(CCACHE ccache)
if(CCACHE)
    # Precompiled headers only hit the cache when their defines and time stamps are left out of the comparison.
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime ${CCACHE})
endif()

add_library(vantor_flags INTERFACE)
if(MSVC)
    target_compile_options(vantor_flags INTERFACE /W4 /utf-8)
else()
    target_compile_options(vantor_flags INTERFACE -Wall -Wextra -Wformat=2 -Werror=format -Werror=return-type
                           -Wnon-virtual-dtor -fno-omit-frame-pointer)
    # Crash reports name every module's build, so that none is resolved with another one.
    target_link_options(vantor_flags INTERFACE LINKER:--build-id=sha1)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        # Means the functions too that hand a checked format on.
        target_compile_options(vantor_flags INTERFACE -Wno-format-nonliteral)
    endif()
    if(CCACHE AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        target_compile_options(vantor_flags INTERFACE -fpch-preprocess)
    endif()
    if(VANTOR_SANITIZE)
        # The vptr check opens a pipe to look at memory, which a test that leaves no descriptors makes fail.
        # A target that sets VANTOR_UNSANITIZED is left as it is.
        set(wanted "$<NOT:$<BOOL:$<TARGET_PROPERTY:VANTOR_UNSANITIZED>>>")
        target_compile_options(vantor_flags INTERFACE
            "$<${wanted}:-fsanitize=${VANTOR_SANITIZE};-fno-sanitize=vptr;-fno-sanitize-recover=all>")
        target_link_options(vantor_flags INTERFACE "$<${wanted}:-fsanitize=${VANTOR_SANITIZE}>")
    endif()
endif()
