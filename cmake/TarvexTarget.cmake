# The compile options that every target of this project takes.
add_library(tarvex_options INTERFACE)
target_compile_options(tarvex_options INTERFACE -Wall -Wextra -Wshadow
  $<$<COMPILE_LANGUAGE:C>:-Wpedantic>
  $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor -Woverloaded-virtual>
  $<$<BOOL:${TARVEX_WERROR}>:-Werror>)

set(sanitizers)
if(TARVEX_SANITIZE STREQUAL "address")
  # "undefined" leaves the last two out; a report must end the program, or no test would notice.
  set(sanitizers -fsanitize=address,undefined,float-cast-overflow,float-divide-by-zero
      -fno-sanitize-recover=all)
elseif(TARVEX_SANITIZE)
  set(sanitizers -fsanitize=${TARVEX_SANITIZE})
endif()
if(sanitizers)
  # The sanitizers' own code makes GCC see uninitialised values where there are none.
  target_compile_options(tarvex_options INTERFACE ${sanitizers} -fno-omit-frame-pointer
    -Wno-maybe-uninitialized)
  target_compile_definitions(tarvex_options INTERFACE _GLIBCXX_ASSERTIONS)
  target_link_options(tarvex_options INTERFACE ${sanitizers})
endif()
if(TARVEX_FUZZ)
  # Clang only; the program with libFuzzer's main function asks for the rest.
  set(sanitizers -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all
      -fno-omit-frame-pointer)
  target_compile_options(tarvex_options INTERFACE ${sanitizers})
  target_link_options(tarvex_options INTERFACE ${sanitizers})
endif()
if(TARVEX_COVERAGE)
  target_compile_options(tarvex_options INTERFACE --coverage)
  target_link_options(tarvex_options INTERFACE --coverage)
endif()

# What the tests tell the sanitizers.
function(tarvex_set_sanitizer_options)
  set(suppressions ${PROJECT_SOURCE_DIR}/tests/suppressions)
  if(TARVEX_SANITIZE STREQUAL "address")
    # The leak checker crashes now and then on the thread-local storage of libraries that were
    # unloaded, as Mesa's drivers are with the last display.
    set(leaks print_suppressions=0:use_tls=0:suppressions=${suppressions}/lsan.supp)
    set(environment ASAN_OPTIONS=detect_leaks=1:allocator_may_return_null=1
        UBSAN_OPTIONS=print_stacktrace=1 LSAN_OPTIONS=${leaks})
  elseif(TARVEX_SANITIZE STREQUAL "thread")
    set(environment TSAN_OPTIONS=second_deadlock_stack=1:suppressions=${suppressions}/tsan.supp)
  else()
    return()
  endif()
  set_tests_properties(${ARGN} PROPERTIES ENVIRONMENT "${environment}")
endfunction()
