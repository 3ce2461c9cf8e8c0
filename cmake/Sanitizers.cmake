if(TALVESK_SANITIZE)
  target_compile_options(talvesk_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(talvesk_options INTERFACE -fsanitize=address,undefined)
endif()
