# The libraries that build.sh makes beside those of common.sh, each once. Of Qt Svg, of the libraries for XLSX and of that for
# a server, with its encryption, the suite can do without: what cannot be fetched is said, and the suite says what it then has not.
# Sourced, never started by itself.
# shellcheck shell=bash

# Without what Windows does not have, what the suite does not use, and tabletevent, whose header Debian leaves out.
MakeQt() {
    local Name Options=()
    if [[ -f $Prefix/lib/cmake/Qt6PrintSupport/Qt6PrintSupportConfig.cmake ]]; then
        return
    fi
    Heading "Qt"
    Source qt6-base
    for Name in sql dbus direct2d vulkan concurrent openssl schannel glib icu tabletevent; do
        Options+=("-DFEATURE_$Name=OFF")
    done
    for Name in zlib png jpeg harfbuzz freetype pcre2 doubleconversion; do
        Options+=("-DFEATURE_system_$Name=OFF")
    done
    InstallLibrary "$Libraries/src/qt6-base" qt -DBUILD_SHARED_LIBS=ON -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF \
        -DINPUT_opengl=no "${Options[@]}"
}

# Qt's writer of SVG, for the plots; without it their menu says that it is not in this build.
MakeQtSvg() {
    if [[ -f $Prefix/lib/cmake/Qt6Svg/Qt6SvgConfig.cmake ]]; then
        return
    fi
    Heading "Qt Svg"
    if ! Source qt6-svg; then
        echo "Its source package is not to be had: this build saves no plot as SVG."
        return
    fi
    InstallLibrary "$Libraries/src/qt6-svg" qtsvg -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF
}

MakeQCustomPlot() {
    if [[ -f $Prefix/lib/cmake/QCustomPlotQt6/QCustomPlotQt6Config.cmake ]]; then
        return
    fi
    Heading "QCustomPlot"
    Source qcustomplot
    InstallLibrary "$Libraries/src/qcustomplot" qcustomplot -DUSE_QT_VERSION=6
}

# MakeArchive NAME FILE...: a library of C files, in the prefix.
MakeArchive() {
    local Name=$1 Folder=$Libraries/$1-build
    shift
    rm -rf -- "$Folder"
    mkdir -p "$Folder" "$Prefix/lib"
    (cd -- "$Folder" && "$Target-gcc-posix" -O2 -I"$Prefix/include" -c "$@" && "$Target-ar" rcs "$Prefix/lib/lib$Name.a" ./*.o)
}

MakeZlib() {
    local From=$Libraries/src/zlib
    cp -- "$From/zlib.h" "$From/zconf.h" "$Prefix/include/"
    MakeArchive z "$From"/*.c
}

# With zlib in it, so that it can be linked in any order.
MakeMinizip() {
    local From=$Libraries/src/minizip
    mkdir -p "$Prefix/include/minizip"
    cp -- "$From"/{crypt,ioapi,iowin32,mztools,unzip,zip}.h "$Prefix/include/minizip/"
    MakeArchive minizip "$From"/{ioapi,iowin32,mztools,unzip,zip}.c "$Libraries"/src/zlib/*.c
}

# Its own option for DTDs defines XML_DTD as nothing, while Debian's mending asks whether it is 1.
MakeExpat() {
    InstallLibrary "$Libraries/src/expat/expat" expat -DEXPAT_SHARED_LIBS=OFF -DEXPAT_DTD=OFF -DCMAKE_C_FLAGS=-DXML_DTD=1 \
        -DEXPAT_BUILD_TOOLS=OFF -DEXPAT_BUILD_EXAMPLES=OFF -DEXPAT_BUILD_TESTS=OFF -DEXPAT_BUILD_DOCS=OFF
}

# Shared, so that whoever links it need not know the archives within.
MakeXlsxwriter() {
    InstallLibrary "$Libraries/src/libxlsxwriter" xlsxwriter -DBUILD_SHARED_LIBS=ON -DUSE_SYSTEM_MINIZIP=ON
}

# XLSX files are ZIP archives of XML: read by minizip and expat, written by libxlsxwriter.
MakeXlsx() {
    local Name
    if [[ -f $Prefix/include/xlsxwriter.h ]]; then
        return
    fi
    Heading "The libraries for XLSX"
    for Name in zlib minizip expat libxlsxwriter; do
        if ! Source "$Name"; then
            echo "The source package $Name is not to be had: this build reads and writes no XLSX."
            return
        fi
    done
    MakeZlib
    MakeMinizip
    MakeExpat
    MakeXlsxwriter
}

# What a connection to a server is encrypted by; without it a client reaches servers that do not ask for that.
MakeOpenssl() {
    local To=$Libraries/openssl-build
    if [[ -f $Prefix/lib/libssl.dll.a ]]; then
        return
    fi
    Heading "OpenSSL"
    if ! Source openssl; then
        echo "Its source package is not to be had: this build keeps records on servers without encryption alone."
        return
    fi
    mkdir -p "$To"
    (
        cd -- "$To"
        CC="ccache $Target-gcc-posix" AR="$Target-ar" RANLIB="$Target-ranlib" RC="$Target-windres" "$Libraries/src/openssl/Configure" \
            mingw64 shared no-tests no-engine no-legacy no-module no-autoload-config \
            --prefix=/ --libdir=lib --openssldir="/Program Files/Common Files/SSL" >configure.log
        make -j "$(nproc)" build_libs >make.log
        make install_dev DESTDIR="$Prefix" >>make.log
    )
}

# The client of PostgreSQL alone, with the log-in of Windows.
MakeLibpq() {
    local To=$Libraries/libpq-build From=$Libraries/src/postgresql-15 Options=()
    MakeOpenssl
    if [[ -f $Prefix/include/libpq-fe.h && ! $Prefix/lib/libssl.dll.a -nt $Prefix/include/libpq-fe.h ]]; then
        return
    fi
    if [[ -f $Prefix/lib/libssl.dll.a ]]; then
        Options+=(--with-ssl=openssl "--with-includes=$Prefix/include" "--with-libraries=$Prefix/lib")
    fi
    Heading "libpq"
    if ! Source postgresql-15; then
        echo "Its source package is not to be had: this build keeps no records on a server."
        return
    fi
    mkdir -p "$To"
    (
        cd -- "$To"
        "$From/configure" --host="$Target" CC="ccache $Target-gcc-posix" --without-zlib --without-readline \
            "${Options[@]}" >configure.log
        make -j "$(nproc)" -C src/interfaces/libpq >make.log
        cp src/interfaces/libpq/libpq.dll "$Prefix/bin/"
        cp src/interfaces/libpq/libpq.a "$Prefix/lib/libpq.dll.a"
        cp src/include/pg_config.h src/include/pg_config_ext.h "$Prefix/include/"
        cp "$From"/src/include/postgres_ext.h "$From"/src/interfaces/libpq/libpq-fe.h "$Prefix/include/"
    )
}
