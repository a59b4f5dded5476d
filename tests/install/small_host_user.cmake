# CMake reads this after the project command of the small host: adds a simulated user to the program.
set(user "${CMAKE_CURRENT_LIST_DIR}/small_host_user.cpp")
cmake_language(EVAL CODE "cmake_language(DEFER CALL target_sources small_host PRIVATE [[${user}]])")
