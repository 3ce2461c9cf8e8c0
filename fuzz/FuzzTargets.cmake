# The entry points that the fuzzer and the replay of seeds share. Seeds of a target lie in a folder
# of its name.
set(TALVESK_FUZZ_TARGETS travel_times seg2 segy su palette isovalues project tables
  settings seg2_standard mseed segy_standard su_standard)
set(TALVESK_FUZZ_SOURCE_travel_times ${CMAKE_CURRENT_LIST_DIR}/FuzzTravelTimes.cpp)
set(TALVESK_FUZZ_SOURCE_seg2 ${CMAKE_CURRENT_LIST_DIR}/FuzzSeg2.cpp)
set(TALVESK_FUZZ_SOURCE_segy ${CMAKE_CURRENT_LIST_DIR}/FuzzSegy.cpp)
set(TALVESK_FUZZ_SOURCE_su ${CMAKE_CURRENT_LIST_DIR}/FuzzSu.cpp)
set(TALVESK_FUZZ_SOURCE_palette ${CMAKE_CURRENT_LIST_DIR}/FuzzPalette.cpp)
set(TALVESK_FUZZ_SOURCE_isovalues ${CMAKE_CURRENT_LIST_DIR}/FuzzIsovalues.cpp)
set(TALVESK_FUZZ_SOURCE_project ${CMAKE_CURRENT_LIST_DIR}/FuzzProject.cpp)
set(TALVESK_FUZZ_SOURCE_tables ${CMAKE_CURRENT_LIST_DIR}/FuzzTables.cpp)
set(TALVESK_FUZZ_SOURCE_settings ${CMAKE_CURRENT_LIST_DIR}/FuzzSettings.cpp)
set(TALVESK_FUZZ_SOURCE_seg2_standard ${CMAKE_CURRENT_LIST_DIR}/FuzzSeg2Standard.cpp)
set(TALVESK_FUZZ_SOURCE_mseed ${CMAKE_CURRENT_LIST_DIR}/FuzzMiniSeed.cpp)
set(TALVESK_FUZZ_SOURCE_segy_standard ${CMAKE_CURRENT_LIST_DIR}/FuzzSegyStandard.cpp)
set(TALVESK_FUZZ_SOURCE_su_standard ${CMAKE_CURRENT_LIST_DIR}/FuzzSuStandard.cpp)
set(TALVESK_FUZZ_REPLAY ${CMAKE_CURRENT_LIST_DIR}/Replay.cpp)
set(TALVESK_FUZZ_SEEDS ${CMAKE_CURRENT_LIST_DIR}/make_seeds.py)
