# make demo  - installs what is missing, builds, runs the program on the sample installation
# make test  - installs what is missing, builds, runs the whole test suite
# make fuzz  - builds the fuzz targets with clang and runs each for a bounded time
BUILD ?= build
BUILD_FUZZ ?= build-fuzz
FUZZ_SECONDI ?= 60
JOBS ?= 2

PACCHETTI = cmake ninja-build g++ make libgtest-dev libgmock-dev libbenchmark-dev \
            libcli11-dev nlohmann-json3-dev hershey-fonts-data locales \
            python3-ezdxf librecad poppler-utils qt6-base-dev qt6-svg-dev libgl-dev fonts-dejavu-core
PACCHETTI_FUZZ = clang libclang-rt-14-dev

.PHONY: all dipendenze dipendenze-fuzz locale-it installa build test demo fuzz clean

all: build

dipendenze:
	@$(MAKE) --no-print-directory installa LISTA="$(PACCHETTI)"
	@$(MAKE) --no-print-directory locale-it

dipendenze-fuzz: dipendenze
	@$(MAKE) --no-print-directory installa LISTA="$(PACCHETTI_FUZZ)"

# The tests check that an Italian desktop (decimal comma) does not leak into files and reports.
locale-it:
	@locale -a 2>/dev/null | grep -qi '^it_IT.utf-\?8$$' || { \
	  sed -i 's/^# *it_IT.UTF-8 UTF-8/it_IT.UTF-8 UTF-8/' /etc/locale.gen; \
	  grep -q '^it_IT.UTF-8 UTF-8' /etc/locale.gen || echo 'it_IT.UTF-8 UTF-8' >> /etc/locale.gen; \
	  locale-gen >/dev/null; }

installa:
	@mancanti=""; \
	for p in $(LISTA); do dpkg -s $$p >/dev/null 2>&1 || mancanti="$$mancanti $$p"; done; \
	if [ -n "$$mancanti" ]; then \
	  echo "Installing:$$mancanti"; \
	  apt-get update && DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends $$mancanti; \
	fi

$(BUILD)/build.ninja: | dipendenze
	cmake -S . -B $(BUILD) -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo

build: dipendenze $(BUILD)/build.ninja
	cmake --build $(BUILD) -j $(JOBS)

test: build
	ctest --test-dir $(BUILD) --output-on-failure -j $(JOBS)

demo: build
	./tools/demo.sh $(BUILD)

fuzz: dipendenze-fuzz
	cmake -S . -B $(BUILD_FUZZ) -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
	  -DCMAKE_CXX_COMPILER=clang++ -DQF17_TESTS=OFF -DQF17_FUZZ=ON
	cmake --build $(BUILD_FUZZ) -j $(JOBS)
	./tools/fuzz.sh $(BUILD_FUZZ) $(FUZZ_SECONDI)

clean:
	rm -rf $(BUILD) $(BUILD_FUZZ)
