# Options that every target of ours is compiled with. The same inputs give the same bits on every target: no fused
# multiply-add, no fast math.
add_library(tarnwise_options INTERFACE)
target_compile_options(tarnwise_options INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor -Werror -ffp-contract=off)
# GCC 12 sees overlaps in std::string's own concatenation where there are none (its bug 105651).
target_compile_options(tarnwise_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
if(TARNWISE_SANITIZE)
  target_compile_options(tarnwise_options INTERFACE
    -fsanitize=${TARNWISE_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(tarnwise_options INTERFACE -fsanitize=${TARNWISE_SANITIZE})
endif()
if(TARNWISE_FUZZ)
  # Without the tracing of comparisons: it halves the speed, and the dictionaries name what it would find.
  target_compile_options(tarnwise_options INTERFACE
    -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-coverage=trace-cmp -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(tarnwise_options INTERFACE -fsanitize=address,undefined)
endif()
