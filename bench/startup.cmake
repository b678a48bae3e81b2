# The start-up benchmark shows the editor's windows: it needs Qt and the
# editor library, so it is built here rather than with the core benchmarks.
if(QOR_BUILD_EDITOR AND TARGET startup_bench)
  target_link_libraries(startup_bench PRIVATE qoreditor)
endif()
