# An installed tree that a customer's own project finds with find_package(Fieldkit) or
# pkg-config. The DLLs and the static libraries go into one tree, each with its own files.
include(CMakePackageConfigHelpers)

if(FIELDKIT_SHARED)
  set(_kind shared)
else()
  set(_kind static)
endif()
set(_package ${CMAKE_INSTALL_LIBDIR}/cmake/Fieldkit)

set(_installed framework companion fieldkit)
if(WIN32)
  list(APPEND _installed winmain)
endif()
install(TARGETS ${_installed} EXPORT Fieldkit-${_kind}
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(EXPORT Fieldkit-${_kind} NAMESPACE Fieldkit:: DESTINATION ${_package})

# Only what lies directly in these folders is public; subfolders are internal.
foreach(_folder api framework geometry survey util controls dialogs resources)
  file(GLOB _headers CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${_folder}/*.h)
  install(FILES ${_headers} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/fieldkit/${_folder})
endforeach()
# The standard texts, which scripts include by these names.
install(FILES ${PROJECT_SOURCE_DIR}/framework/afxres.rc
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/fieldkit/framework)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/framework/l.jpn
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/fieldkit/framework)
install(FILES ${PROJECT_SOURCE_DIR}/companion/Tesuvo.h
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/fieldkit/companion)

# The system's headers by the names that programs of other disks write, where case makes a difference.
foreach(_name CommCtrl CommDlg Commctrl Commdlg DbgHelp Dbghelp Dbt GdiPlus Gdiplus HtmlHelp Htmlhelp IPHlpApi
        Iphlpapi MMReg MMSystem Mmsystem ObjBase Objbase Ole2 OleAuto PSAPI PowrProf Powrprof Psapi RichEdit Richedit
        SetupAPI Setupapi ShLwApi ShellAPI ShellApi Shellapi ShlGuid ShlObj Shlobj Shlwapi StrSafe Strsafe TChar Tchar
        TlHelp32 Tlhelp32 UxTheme Uxtheme Vssym32 WS2tcpip WinBase WinCrypt WinInet WinIoCtl WinNT WinReg WinSDKVer
        WinSock WinSock2 WinSvc WinUser Wincrypt Windows Wininet Winioctl Winsock2 Winsvc Ws2tcpip WtsApi32 Wtsapi32)
  string(TOLOWER ${_name} _lower)
  file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/names/${_name}.h CONTENT
    "#pragma once\n#pragma GCC system_header\n#include_next <${_lower}.h>\n" @ONLY)
endforeach()
install(DIRECTORY ${PROJECT_BINARY_DIR}/names/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/fieldkit/framework)

configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/FieldkitConfig.cmake.in
  ${PROJECT_BINARY_DIR}/FieldkitConfig.cmake INSTALL_DESTINATION ${_package})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/FieldkitConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/FieldkitConfig.cmake
  ${PROJECT_BINARY_DIR}/FieldkitConfigVersion.cmake
  ${PROJECT_SOURCE_DIR}/cmake/FieldkitResources.cmake
  ${PROJECT_SOURCE_DIR}/cmake/FieldkitSources.cmake DESTINATION ${_package})

if(WIN32)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/fieldkit-${_kind}.pc.in ${PROJECT_BINARY_DIR}/fieldkit-${_kind}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/fieldkit-${_kind}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endif()
