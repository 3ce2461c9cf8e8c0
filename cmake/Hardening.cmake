# What distributions build their packages with; this program reads files of strangers. The tables of
# the linker are read-only before main() begins, functions with a buffer guard their stack, and the C
# library checks the lengths that the compiler knows, which only an optimizing one does. Sanitizers
# bring checks of their own and need the plain functions. (The compilers of Debian make programs that
# can lie anywhere in memory by themselves.)
if(NOT TALVESK_SANITIZE AND NOT TALVESK_FUZZ)
  target_compile_options(talvesk_options INTERFACE -fstack-protector-strong -Wformat-security)
  if(NOT CMAKE_BUILD_TYPE STREQUAL "Debug")
    target_compile_options(talvesk_options INTERFACE -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
  endif()
  target_link_options(talvesk_options INTERFACE -Wl,-z,relro,-z,now)
endif()
