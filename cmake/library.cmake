# morvane_library(foundation/base DEPENDS ...): one sub-folder of src/ as one library, named
# morvane_foundation_base, from every .cpp in it and in the folders inside it (app/scalar).
# *_avx2.cpp alone is built for AVX2.
function(morvane_library folder)
    cmake_parse_arguments(LIB "" "" "DEPENDS;LINK" ${ARGN})
    string(REPLACE "/" "_" flat ${folder})
    file(GLOB sources CONFIGURE_DEPENDS
        ${PROJECT_SOURCE_DIR}/src/${folder}/*.cpp ${PROJECT_SOURCE_DIR}/src/${folder}/*/*.cpp)
    if(NOT sources)
        add_library(morvane_${flat} INTERFACE)
        set(access INTERFACE)
    else()
        add_library(morvane_${flat} STATIC ${sources})
        set(access PUBLIC)
    endif()
    target_link_libraries(morvane_${flat} ${access} morvane_options ${LIB_LINK})
    foreach(dependency ${LIB_DEPENDS})
        string(REPLACE "/" "_" flatDependency ${dependency})
        target_link_libraries(morvane_${flat} ${access} morvane_${flatDependency})
    endforeach()
    file(GLOB wide CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/${folder}/*_avx2.cpp)
    if(wide AND CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64")
        set_source_files_properties(${wide} PROPERTIES COMPILE_OPTIONS -mavx2)
    endif()
endfunction()

# morvane_tests(foundation/base ...): one test program a sub-folder, named test_foundation_base,
# from every *_test.cpp in tests/<folder>; doctest's main comes from tests/support.
function(morvane_tests folder)
    string(REPLACE "/" "_" flat ${folder})
    file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tests/${folder}/*_test.cpp)
    if(sources)
        add_executable(test_${flat} ${sources})
        target_link_libraries(test_${flat} PRIVATE morvane_test_main morvane_${flat})
        add_test(NAME ${folder} COMMAND test_${flat}
            WORKING_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR})
        set_tests_properties(${folder} PROPERTIES TIMEOUT 600)
    endif()
endfunction()
