if(TALVESK_SANITIZE)
  # Instrumented code makes the compiler suspect uninitialised values in the standard library.
  target_compile_options(talvesk_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer
    -Wno-maybe-uninitialized)
  target_link_options(talvesk_options INTERFACE -fsanitize=address,undefined)
endif()
