# Our own code builds without a warning where we build it; a compiler that is newer than ours may know
# more of them, and then only says so. -ffp-contract=off keeps every product and sum rounded by
# itself on every processor, so that results agree to the last bit; -fno-math-errno only lets the
# compiler use the processor's square root directly.
add_library(talvesk_options INTERFACE)
target_compile_options(talvesk_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Wnon-virtual-dtor
  $<$<BOOL:${TALVESK_WERROR}>:-Werror>
  -ffp-contract=off -fno-math-errno)
target_compile_definitions(talvesk_options INTERFACE
  QT_NO_FOREACH QT_NO_CAST_TO_ASCII TALVESK_VERSION="${PROJECT_VERSION}")
