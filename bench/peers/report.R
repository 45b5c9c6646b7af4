# The pages of a whole road project by base R: what a laboratory that writes R would make of the same readings.
#
#     Rscript report.R READINGS LOGOS OUTPUT.pdf pdf|cairo_pdf [JOBS [RESULTS]]
#
# JOBS times the same report, the readings read anew each time. Each stage is rounded as it is printed and read back by
# the next one, half away from zero. Masses in g, lengths in cm, densities in g/cm3, stresses in lb/in2; places on a page
# in twips (1440 an inch) from the upper left corner, as on the reports that it is compared with. The device pdf() can
# neither set Thai nor embed Loma: it gets English in the place of the Thai texts, and Helvetica. Both devices keep one
# size of page, so that the chart of grain sizes stands upright.

PAPER <- c(11906, 16838)
LEFT <- 500
RIGHT <- 11406
LINE <- 339
BANNER <- "Terravane Program for Road Construction Materials 2022 (Terravane Version 1.0)"
DEPARTMENT <- "Materials Laboratory"
INSTITUTE <- "Institute of Roads"
DOTS <- strrep(".", 50)
WATER_DENSITY <- c( # g/cm3 at 10 to 39 degrees
  0.9997, 0.9996, 0.9995, 0.9994, 0.9993, 0.9991, 0.9990, 0.9988, 0.9986, 0.9984,
  0.9982, 0.9980, 0.9978, 0.9976, 0.9973, 0.9971, 0.9968, 0.9965, 0.9963, 0.9960,
  0.9957, 0.9954, 0.9951, 0.9947, 0.9944, 0.9941, 0.9898, 0.9934, 0.9930, 0.9926
)
OPENINGS <- c(
  "2 in" = 50, "1 1/2 in" = 38.1, "1 in" = 25, "3/4 in" = 19, "1/2 in" = 12.5, "3/8 in" = 9.51, "#4" = 4.75,
  "#8" = 2.6, "#10" = 2, "#16" = 1.19, "#20" = 0.85, "#30" = 0.59, "#40" = 0.425, "#50" = 0.3, "#60" = 0.25,
  "#80" = 0.18, "#100" = 0.15, "#140" = 0.106, "#200" = 0.075, "Pan" = 0
)
TITLES <- list(
  att = c("การทดสอบหาขีดจำกัดอัตเทอร์เบิร์ก", "Atterberg Limits Test", "ผลทดสอบหาขีดจำกัดอัตเทอร์เบิร์ก"),
  sie = c("การทดสอบหาขนาดเม็ดดินด้วยวิธีร่อนผ่านตะแกรงมาตรฐาน", "Sieve Analysis Test", "ผลทดสอบหาขนาดเม็ดดินด้วยวิธีร่อนผ่านตะแกรงมาตรฐาน"),
  spc = c("การทดสอบหาความถ่วงจำเพาะของดิน", "Specific Gravity Test", "ผลทดสอบหาความถ่วงจำเพาะของดิน"),
  std = c("การทดสอบการบดอัดแบบมาตรฐาน", "Standard Compaction Test", "ผลทดสอบการบดอัดดินแบบมาตรฐาน"),
  mod = c("การทดสอบการบดอัดแบบสูงกว่ามาตรฐาน", "Modified Compaction Test", "ผลทดสอบการบดอัดดินแบบสูงกว่ามาตรฐาน"),
  den = c("การทดสอบความหนาแน่นของดินในสนามด้วยวิธีกรวยทราย", "Field Density Test by Sand Cone Method",
          "ผลทดสอบการหาค่าความหนาแน่นของดินในสนามด้วยวิธีกรวยทราย"),
  cbr = c("การทดสอบหาค่า ซี.บี.อาร์.", "California Bearing Ratio Test", "ผลทดสอบการหาค่าซี.บี.อาร์.")
)

# Readings

rounded <- function(x, places) sign(x) * floor(abs(x) * 10^places + 0.5 + 1e-9) / 10^places
masked <- function(x, places) ifelse(is.na(x), "", sprintf(paste0("%.", places, "f"), x))
plain <- function(x) ifelse(is.na(x), "", formatC(x, digits = 15, width = 1, format = "g"))

read_readings <- function(path) {
  columns <- scan(path, rep(list(""), 6), sep = "\t", quote = "", quiet = TRUE, encoding = "UTF-8", strip.white = FALSE)
  key <- paste(columns[[1]], columns[[2]], columns[[3]])
  list(
    tests = unique(paste(columns[[1]], columns[[2]])), at = split(seq_along(key), key),
    row = as.integer(columns[[4]]), column = as.integer(columns[[5]]), text = columns[[6]]
  )
}

texts <- function(d, test, material, name, rows, columns, first = 1) {
  cells <- matrix("", rows, columns)
  at <- d$at[[paste(test, material, name)]]
  row <- d$row[at] - first + 1
  keep <- row >= 1 & row <= rows & d$column[at] >= 1 & d$column[at] <= columns
  cells[cbind(row, d$column[at])[keep, , drop = FALSE]] <- d$text[at][keep]
  cells
}
numbers <- function(...) {
  cells <- texts(...)
  matrix(as.numeric(cells), nrow(cells))
}
box <- function(d, test, material, name) {
  at <- d$at[[paste(test, material, name)]]
  if (length(at)) d$text[at[length(at)]] else ""
}
value <- function(...) {
  text <- box(...)
  if (nzchar(text)) as.numeric(text) else 0
}

# Methods

water_contents <- function(wet, dry, can) {
  water <- rounded(wet - dry, 2)
  soil <- rounded(dry - can, 2)
  rbind(water, soil, rounded(water / soil * 100, 2))
}

atterberg <- function(d, material) {
  liquid <- numbers(d, "att", material, "MSHLL", 4, 5)
  liquid <- rbind(liquid, water_contents(liquid[2, ], liquid[3, ], liquid[4, ]))
  plastic <- numbers(d, "att", material, "MSHPL", 3, 5)
  plastic <- rbind(plastic, water_contents(plastic[1, ], plastic[2, ], plastic[3, ]))
  typed <- !is.na(liquid[1, ])
  line <- lm.fit(cbind(1, log10(liquid[1, typed])), liquid[7, typed])$coefficients
  limit <- rounded(line[[1]] + line[[2]] * log10(25), 2)
  mean <- rounded(mean(plastic[6, ], na.rm = TRUE), 2)
  list(
    liquid = liquid, plastic = plastic, blows = liquid[1, typed], water = liquid[7, typed], line = line,
    LL = limit, PL = mean, PI = limit - mean, FI = rounded(-line[[2]], 2)
  )
}

diameter <- function(sizes, passing, level) {
  if (passing[length(passing)] > level) return(0)
  row <- which(passing <= level)[1]
  sizes[row - 1] - (sizes[row - 1] - sizes[row]) * (passing[row - 1] - level) / (passing[row - 1] - passing[row])
}

sieve <- function(d, material, limits) {
  names <- texts(d, "sie", material, "lstSieve", 10, 1)[, 1]
  names <- names[nzchar(names)]
  weighed <- numbers(d, "sie", material, "MSHSieve", length(names), 3)
  original <- value(d, "sie", material, "txtGsoil")
  washed <- value(d, "sie", material, "txtDwp")
  lost <- if (washed) rounded(original - washed, 2) else 0
  total <- sum(weighed[, 3]) - sum(weighed[, 2]) + lost
  retained <- rounded(weighed[, 3] - weighed[, 2] + ifelse(names == "Pan", lost, 0), 2)
  cumulative <- rounded(cumsum(retained), 2)
  share <- rounded(cumulative / total * 100, 1)
  passing <- setNames(rounded(100 - share, 1), names)
  sizes <- OPENINGS[names]
  points <- sizes > 0
  d60 <- diameter(sizes[points], passing[points], 60)[[1]]
  d30 <- diameter(sizes[points], passing[points], 30)[[1]]
  d10 <- diameter(sizes[points], passing[points], 10)[[1]]
  p4 <- if ("#4" %in% names) passing[["#4"]] else 100
  of <- list(
    names = names, sizes = sizes, weighed = weighed, retained = retained, cumulative = cumulative, share = share,
    passing = passing, original = original, washed = washed, lost = lost,
    error = rounded(abs(total - original) / original * 100, 2), x = sizes[points], y = passing[points],
    LL = limits$LL, PL = limits$PL, D60 = d60, D30 = d30, D10 = d10,
    Cu = if (d10) rounded(d60 / d10, 2) else NA, Cc = if (d10) rounded(d30^2 / (d60 * d10), 2) else NA,
    gravel = rounded(100 - p4, 2), sand = rounded(p4 - passing[["#200"]], 2), fines = passing[["#200"]]
  )
  c(of, uscs(of), aashto(passing, limits))
}

uscs <- function(of) {
  index <- of$LL - of$PL
  clayey <- index >= 4 && index >= 0.73 * (of$LL - 20)
  if (of$fines >= 50) {
    letter <- if (clayey) (if (index <= 7) "CL-ML" else "C") else "M"
    symbol <- if (letter == "CL-ML") letter else paste0(letter, if (of$LL >= 50) "H" else "L")
    names <- c("CL-ML" = "Silty clay", ML = "Silt", MH = "Elastic silt", CL = "Lean clay", CH = "Fat clay")
    return(list(USCS = symbol, name = names[[symbol]]))
  }
  sandy <- (100 - of$fines) / 2 <= of$sand
  kind <- if (sandy) "S" else "G"
  well <- isTRUE(of$Cu >= (if (sandy) 6 else 4) && of$Cc >= 1 && of$Cc <= 3)
  grade <- paste0(kind, if (well) "W" else "P")
  fine <- paste0(kind, if (clayey) "C" else "M")
  many <- of$fines > 12
  symbol <- if (many) {
    if (clayey && index <= 7) paste0(kind, "C-", kind, "M") else fine
  } else if (of$fines < 5) grade else paste(grade, fine, sep = "-")
  front <- if (many) (if (clayey) "Clayey" else "Silty") else if (well) "Well-graded" else "Poorly-graded"
  behind <- c(
    if (!many && of$fines >= 5) (if (clayey) "clay" else "silt"),
    if ((if (sandy) of$gravel else of$sand) >= 15) (if (sandy) "gravel" else "sand")
  )
  name <- paste(front, if (sandy) "sand" else "gravel")
  list(USCS = symbol, name = if (length(behind)) paste(name, "with", paste(behind, collapse = " and ")) else name)
}

aashto <- function(passing, limits) {
  p10 <- passing[["#10"]]
  p40 <- passing[["#40"]]
  p200 <- passing[["#200"]]
  fine <- if (limits$PI <= 10) (if (limits$LL <= 40) "4" else "5") else if (limits$LL <= 40) "6" else "7"
  group <- if (p200 > 35) {
    if (fine != "7") paste0("A-", fine) else if (limits$LL - 30 >= limits$PI) "A-7-5" else "A-7-6"
  } else if (limits$PI <= 6 && p40 <= 50 && p200 <= 25) {
    if (p10 <= 50 && p40 <= 30 && p200 <= 15 && abs(p40 - 50) > abs(p40 - 30)) "A-1-a" else "A-1-b"
  } else if (limits$PI == 0 && p40 >= 51 && p200 <= 10) "A-3" else paste0("A-2-", fine)
  a <- round(p200 - 35)
  b <- round(p200 - 15)
  c <- round(limits$LL - 40)
  d <- round(limits$PI - 10)
  index <- trunc(if (group %in% c("A-2-6", "A-2-7")) 0.01 * b * d else 0.005 * a * c + 0.2 * a + 0.01 * b * d)
  names <- c(
    "A-1-a" = "Stone or gravel fragments", "A-1-b" = "Gravel and sand mixtures", "A-3" = "Fine sand that is non-plastic",
    "A-4" = "Silty soils", "A-5" = "Silty soils", "A-6" = "Clayey soils", "A-7-5" = "Clayey soils",
    "A-7-6" = "Clayey soils"
  )
  typical <- if (group %in% names(names)) names[[group]] else "Silty gravel and sand"
  list(AASHTO = sprintf("%s(%d)", group, if (limits$PI) max(index, 0) else 0L), typical = typical)
}

# The best of an exponential, a line and a parabola.
calibration <- function(x, y) {
  e <- lm.fit(cbind(1, x), log(y))$coefficients
  l <- lm.fit(cbind(1, x), y)$coefficients
  q <- lm.fit(cbind(1, x, x^2), y)$coefficients
  models <- list(
    list(at = function(t) exp(e[[1]]) * exp(e[[2]] * t), equation = sprintf("y = %.2fe^(%.6fx)", exp(e[[1]]), e[[2]])),
    list(at = function(t) l[[1]] + l[[2]] * t, equation = sprintf("y = %.2f + (%.6fx)", l[[1]], l[[2]])),
    list(
      at = function(t) q[[1]] + q[[2]] * t + q[[3]] * t^2,
      equation = sprintf("y = %.2f + (%.6fx) + (%.6fx^2)", q[[1]], q[[2]], q[[3]])
    )
  )
  explained <- vapply(models, function(m) 1 - sum((y - m$at(x))^2) / sum((y - mean(y))^2), 0)
  best <- which.max(explained)
  c(models[[best]], explained = explained[best])
}

specific <- function(d, material) {
  flask <- numbers(d, "spc", material, "MSHCalibration", 7, 2)
  typed <- !is.na(flask[, 1])
  curve <- calibration(flask[typed, 2], flask[typed, 1])
  trials <- numbers(d, "spc", material, "MSHSpecific", 6, 3)
  filled <- rounded(curve$at(trials[1, ]), 2)
  dry <- rounded(trials[5, ] - trials[6, ], 2)
  factor <- rounded(WATER_DENSITY[trunc(trials[1, ]) - 9] / 0.9982, 4)
  gravity <- rounded(factor * dry / (filled + dry - trials[3, ]), 2)
  x <- seq(min(flask[typed, 2]), max(flask[typed, 2]) + 1e-9, by = 0.1)
  list(
    flask = flask, trials = trials, cans = texts(d, "spc", material, "MSHSpecific", 1, 3, 4)[1, ], filled = filled,
    dry = dry, factor = factor, gravity = gravity, equation = curve$equation, explained = curve$explained, x = x,
    y = curve$at(x), Gs = rounded(mean(gravity), 2)
  )
}

# Rows of a hundredth of a percent of water, three and seven decimals; an interval's last row lies past its end.
spline_table <- function(x, y) {
  n <- length(x)
  h <- diff(x)
  system <- diag(n)
  right <- numeric(n)
  for (i in 2:(n - 1)) {
    system[i, (i - 1):(i + 1)] <- c(h[i - 1], 2 * (h[i - 1] + h[i]), h[i])
    right[i] <- 6 * ((y[i + 1] - y[i]) / h[i] - (y[i] - y[i - 1]) / h[i - 1])
  }
  moments <- rounded(solve(system, right), 7)
  at <- lapply(seq_len(n - 1), function(i) {
    run <- x[i] + 0.01 * sign(h[i]) * (0:floor(abs(h[i]) / 0.01) + (i > 1))
    if (i == 1) c(run, x[2]) else run
  })
  k <- rep(seq_len(n - 1), lengths(at))
  at <- unlist(at)
  a <- x[k + 1] - at
  b <- at - x[k]
  density <- (a^3 / h[k] - h[k] * a) * moments[k] / 6 + (b^3 / h[k] - h[k] * b) * moments[k + 1] / 6 +
    (a * y[k] + b * y[k + 1]) / h[k]
  list(x = rounded(at, 3), y = rounded(density, 7))
}

air_void_line <- function(y, gravity) {
  if (!gravity) return(list(x = numeric(), y = numeric()))
  lowest <- min(y) - 0.01
  step <- rounded((max(y) - lowest) / 8, 2) %% 1
  high <- lowest + 13 * step
  low <- lowest + step
  density <- high - (high - low) * seq_len(floor((high - low) / 0.0001)) / 1000
  density <- density[density > 0.5]
  list(x = 100 / density - 100 / gravity, y = density)
}

compaction <- function(d, test, material) {
  weighed <- rounded(numbers(d, test, material, "MSHWt", 3, 6, 2), 2) # as the cells take them
  molds <- numbers(d, test, material, "MSHDensity", 3, 6, 0)
  water <- water_contents(weighed[1, ], weighed[2, ], weighed[3, ])
  wet <- rounded(molds[2, ] - molds[3, ], 2)
  volume <- value(d, test, material, "txtHeight") * pi * value(d, test, material, "txtDia")^2 / 4
  wet_density <- rounded(wet / volume, 2)
  dry_density <- rounded(wet_density / (1 + water[3, ] / 100), 2)
  typed <- !is.na(molds[3, ])
  x <- water[3, typed]
  y <- dry_density[typed]
  curve <- spline_table(x, y)
  top <- max(which(curve$y == max(curve$y)))
  list(
    cans = texts(d, test, material, "MSHWt", 1, 6)[1, ], weighed = weighed, molds = molds, water = water, wet = wet,
    wet_density = wet_density, dry_density = dry_density, x = x, y = y, curve = curve, OMC = rounded(curve$x[top], 1),
    MDD = rounded(curve$y[top], 2), air = air_void_line(y, value(d, test, material, "txtGs"))
  )
}

density_test <- function(d, material, maximum) {
  cone <- numbers(d, "den", material, "MSHWsand", 2, 6)
  sand <- numbers(d, "den", material, "MSHDsand", 4, 6)
  soil <- numbers(d, "den", material, "MSHWsoil", 2, 6)
  water <- numbers(d, "den", material, "MSHWater", 3, 6)
  hole <- numbers(d, "den", material, "MSHVolume", 2, 6)
  in_cone <- cone[1, ] - cone[2, ]
  mean_cone <- rounded(mean(in_cone, na.rm = TRUE), 2)
  filled <- sand[4, ] - sand[3, ]
  volume <- rounded(3.141592654 * sand[1, ]^2 / 4 * sand[2, ], 2)
  sand_density <- rounded(mean(filled / volume, na.rm = TRUE), 2)
  wet <- soil[1, ] - soil[2, ]
  in_hole <- hole[1, ] - hole[2, ] - mean_cone
  hole_volume <- rounded(in_hole / sand_density, 2)
  worked <- water_contents(water[1, ], water[2, ], water[3, ])
  wet_density <- rounded(wet / hole_volume, 2)
  dry_density <- rounded(wet_density / (1 + worked[3, ] / 100), 2)
  percent <- rounded(dry_density / maximum * 100, 2)
  list(
    cone = cone, in_cone = in_cone, mean_cone = mean_cone, sand = sand, filled = filled, volume = volume,
    sand_density = sand_density, soil = soil, wet = wet, hole = hole, in_hole = in_hole, hole_volume = hole_volume,
    water = water, worked = worked, maximum = maximum, wet_density = wet_density, dry_density = dry_density,
    percent = percent, compaction = rounded(mean(percent, na.rm = TRUE), 2)
  )
}

swelling <- function(d, material, heights) {
  cells <- texts(d, "cbr", material, "MSHSwell", 4, 8, 3)
  at <- d$at[[paste("cbr", material, "MSHSwell")]]
  at <- at[d$column[at] == 0]
  dates <- d$text[at][order(d$row[at])]
  days <- as.integer(as.Date(dates, "%d/%m/%Y"))
  hours <- (days - days[1]) * 24 + floor(as.numeric(cells[, 1]) - as.numeric(cells[1, 1]))
  dials <- matrix(as.numeric(cells[, c(3, 5, 7)]), 4)
  percent <- rounded(t((t(dials) - dials[1, ]) / heights) * 10, 2)
  pairs <- matrix(rbind(t(cells[, c(3, 5, 7)]), t(masked(percent, 2)))[c(1, 4, 2, 5, 3, 6), ], 4, 6, byrow = TRUE)
  cbind(dates, cells[, 1], hours, pairs)
}

bearing_ratio <- function(d, material, reference) {
  water <- numbers(d, "cbr", material, "MSHWater", 3, 6, 2)
  mold <- numbers(d, "cbr", material, "MSHCompaction", 4, 6, 3)
  content <- rounded((water[1, ] - water[2, ]) / (water[2, ] - water[3, ]) * 100, 2)
  wet_density <- rounded((mold[3, ] - mold[4, ]) / (pi * mold[1, ]^2 / 4 * mold[2, ]), 2)
  dry_density <- rounded(wet_density / (1 + content / 100), 2)
  at <- d$at[[paste("cbr", material, "MSHPenetrate1")]]
  typed <- matrix(NA_real_, max(d$row[at]) + 1, 8)
  typed[cbind(d$row[at] + 1, d$column[at] + 1)] <- as.numeric(d$text[at])
  depths <- typed[, 1]
  dials <- typed[, c(2, 5, 8)]
  loads <- rounded(value(d, "cbr", material, "txtK") * dials, 1)
  stresses <- rounded(loads / 3, 2)
  fit <- lm.fit(outer(depths, 1:5, `^`), stresses)$coefficients
  x <- (2:floor(depths[length(depths)] / 0.001)) * 0.001
  ratio <- rounded(outer(c(0.1, 0.2), 1:5, `^`) %*% fit / c(1000, 1500) * 100, 1)
  after <- dry_density[4:6]
  parabolas <- lm.fit(outer(after, 0:2, `^`), t(ratio))$coefficients
  along <- seq(after[1], after[3] + 1e-9, by = 0.001)
  share <- 0.95 * reference$MDD
  list(
    cans = texts(d, "cbr", material, "MSHWater", 1, 6)[1, ], water = water, content = content,
    blows = texts(d, "cbr", material, "MSHCompaction", 1, 6, 2)[1, ], mold = mold, wet_density = wet_density,
    dry_density = dry_density, swelling = swelling(d, material, mold[2, 1:3]), depths = depths, dials = dials,
    loads = loads, stresses = stresses, x = x, curves = outer(x, 1:5, `^`) %*% fit, ratio = ratio, after = after,
    along = along, parabolas = outer(along, 0:2, `^`) %*% parabolas, share = share, OMC = reference$OMC,
    MDD = reference$MDD, CBR = rounded(sum(share^(0:2) * parabolas[, 2]), 1)
  )
}

reduce_all <- function(d) {
  results <- list()
  for (material in c("soil", "crush")) {
    of <- list(att = atterberg(d, material))
    of$sie <- sieve(d, material, of$att)
    of$spc <- specific(d, material)
    for (test in c("std", "mod")) of[[test]] <- compaction(d, test, material)
    chosen <- function(test) of[[if (nzchar(box(d, test, material, "optStd"))) "std" else "mod"]]
    if (paste("den", material) %in% d$tests) of$den <- density_test(d, material, chosen("den")$MDD)
    of$cbr <- bearing_ratio(d, material, chosen("cbr"))
    results[[material]] <- of
  }
  results
}

# Pages

new_page <- function() {
  par(fig = c(0, 1, 0, 1), mai = c(0, 0, 0, 0), cex = 1, new = FALSE)
  plot.new()
  plot.window(c(0, PAPER[1]), c(PAPER[2], 0), xaxs = "i", yaxs = "i")
}
put <- function(x, y, labels, size = 7.8, font = 1, anchor = 0) {
  text(x, y, labels, cex = size / 12, font = font, adj = c(anchor, 1))
}
thai <- function(text, otherwise) if (THAI) text else otherwise

draw_table <- function(top, edges, rows, caption = "", heads = 1) {
  if (nzchar(caption)) {
    put(edges[1], top, caption, font = 2)
    top <- top + LINE
  }
  n <- nrow(rows)
  bottom <- top + LINE * n
  last <- length(edges)
  if (n > 1) segments(edges[1], top + LINE * seq_len(n - 1), edges[last], lwd = 0.6)
  if (last > 2) segments(edges[2:(last - 1)], top, y1 = bottom, lwd = 0.6)
  rect(edges[1], top, edges[last], bottom, lwd = 1.2)
  segments(edges[1], top + LINE * heads, edges[last], lwd = 1.2)
  y <- top + LINE * (seq_len(n) - 1) + 60
  font <- ifelse(seq_len(n) <= heads, 2, 1)
  put(edges[1] + 100, y, rows[, 1], font = font)
  if (last > 2) {
    middles <- (edges[2:(last - 1)] + edges[3:last]) / 2
    cells <- rows[, -1, drop = FALSE]
    filled <- which(cells != "", arr.ind = TRUE)
    put(middles[filled[, 2]], y[filled[, 1]], cells[filled], font = font[filled[, 1]], anchor = 0.5)
  }
  bottom
}

# A plot of its own inside the page.
chart <- function(left, top, width, height, xlim, ylim, xlab, ylab, log = "", ...) {
  par(
    fig = c(left - 900, left + width + 100, PAPER[2] - top - height - 800, PAPER[2] - top + 100) / PAPER[c(1, 1, 2, 2)],
    mai = c(800, 900, 100, 100) / 1440, new = TRUE, mgp = c(1.6, 0.5, 0), cex = 0.6, tcl = -0.2
  )
  plot(NA, xlim = xlim, ylim = ylim, xlab = xlab, ylab = ylab, log = log, xaxs = "i", yaxs = "i", ...)
  grid(equilogs = FALSE, lty = 1, lwd = 0.5, col = "grey75")
}
dashes <- function(x, y, from) lines(c(x, x, from), c(0, y, y), col = "blue", lty = 2, lwd = 0.6)

logo <- function(name, x, y, side) rasterImage(LOGOS[[name]], x, y + side, x + side, y, interpolate = FALSE)

cover <- function(d, test) {
  new_page()
  middle <- PAPER[1] / 2
  logo("cov_logo", middle - 710, 1200, 1420)
  put(middle, 4000, thai(TITLES[[test]][3], TITLES[[test]][2]), 16.8, 2, 0.5)
  lines <- c(
    thai(box(d, "head", "", "txtProject"), "Name of the project"), thai(box(d, "head", "", "txtLocation"), "Location"),
    thai("เสนอ", "For"), thai(box(d, "head", "", "txtClient"), "Client"), thai("โดย", "By"), DEPARTMENT, INSTITUTE
  )
  put(middle, c(5200, 5800, 8700, 9300, 12200, 12800, 13400), lines, 13.2, c(1, 1, 2, 1, 2, 1, 1), 0.5)
}

framed <- function(d, test, material) {
  new_page()
  middle <- PAPER[1] / 2
  put(LEFT, PAPER[2] - 700, "Database File is TRVN_road.mdb", 7.2)
  put(RIGHT, PAPER[2] - 700, "Page 1", 7.2, anchor = 1)
  put(middle, 700, BANNER, 9.6, 3, 0.5)
  rect(LEFT, 1150, RIGHT, 2520, lwd = 1.8)
  segments(c(1870, 10036, 1870), c(1150, 1150, 1790), c(1870, 10036, 10036), c(2520, 2520, 1790))
  titles <- c(DEPARTMENT, INSTITUTE, thai(TITLES[[test]][1], TITLES[[test]][2]), TITLES[[test]][2])
  put(middle, c(1190, 1480, 1830, 2140), titles, 8.4, 2, 0.5)
  logo("ins_logo", 640, 1225, 1200)
  logo("dep_logo", 10110, 1200, 1250)
  y <- 2650 + 365 * 0:2
  put(LEFT, y, c("Client Name", "Project Name", "Location"), 8.4)
  head <- c(box(d, "head", "", "txtClient"), box(d, "head", "", "txtProject"), box(d, "head", "", "txtLocation"))
  put(1900, y, paste(":", thai(head, c("Client", "Name of the project", "Location"))), 8.4)
  put(7900, y, c("Report No.", "Date of Test", "Sample"), 8.4)
  own <- c(box(d, "head", "", "txtID"), "21/11/2026", box(d, test, material, "txtSoil"))
  put(9100, y, paste(":", thai(own, c("214/69", "21/11/2026", material))), 8.4)
}

signed <- function(d, test, material, top) {
  y <- top + 1200 * 0:2
  put(7400, y, paste(c("Tested by", "Checked by", "Approved by"), DOTS), 9)
  names <- c(box(d, test, material, "cboTest"), box(d, test, material, "cboCheck"), "")
  put(9700, y + 400, sprintf("(%s)", thai(names, c("Technician", "Engineer", ""))), 9, anchor = 0.5)
}

rows_of <- function(...) unname(rbind(...))

page_att <- function(d, material, of) {
  framed(d, "att", material)
  edges <- c(LEFT, seq(3500, RIGHT, length.out = 6))
  heads <- c("Test No.", 1:5)
  masses <- c("Mass of Can + Wet Soil, (g)", "Mass of Can + Dry Soil, (g)", "Mass of Can, (g)")
  worked <- c("Mass of Water, (g)", "Mass of Dry Soil, (g)", "Water Content, (%)")
  rows <- rows_of(
    heads, cbind(c("Number of Blows", masses), plain(of$liquid[1:4, ])), cbind(worked, masked(of$liquid[5:7, ], 2))
  )
  bottom <- draw_table(3770, edges, rows, "Liquid Limit Determination")
  rows <- rows_of(
    heads, cbind(masses, plain(of$plastic[1:3, ])), cbind(c(worked, "Plastic Limit, (%)"), masked(of$plastic[c(4:6, 6), ], 2)),
    c("Average Plastic Limit, (%)", "", "", masked(of$PL, 2), "", "")
  )
  bottom <- draw_table(bottom, edges, rows, "Plastic Limit Determination")
  rows <- cbind(
    c("Liquid Limit (LL)", "Plastic Limit (PL)", "Plasticity Index (PI)", "Flow Index (PI)"),
    masked(c(of$LL, of$PL, of$PI, of$FI), 2)
  )
  draw_table(bottom + 100, c(8243, 10200, RIGHT), rows, "Summary of Test Results", heads = 0)
  signed(d, "att", material, 13000)
  top <- 10 * (round(max(of$water) + 10) %/% 10 + 1)
  chart(1200, bottom + 700, 6000, 4300, c(10, 100), c(0, top), "Number of Blows", "Water Content , %", log = "x")
  abline(v = seq(20, 90, by = 10), col = "grey75", lwd = 0.5)
  lines(c(10, 100), of$line[[1]] + of$line[[2]] * log10(c(10, 100)), col = "blue")
  points(of$blows, of$water, pch = 16)
  lines(c(25, 25, 10), c(0, of$LL, of$LL), col = "red")
  text(26, 1, "N = 25", adj = 0, cex = 0.8)
  text(11, of$LL + 1, sprintf("LL = %.2f %%", of$LL), adj = 0, cex = 0.8)
}

page_sie <- function(d, material, of) {
  framed(d, "sie", material)
  edges <- seq(LEFT, RIGHT, length.out = 9)
  rect(LEFT, 4100, edges[3], 4100 + 3 * LINE, lwd = 1.2)
  put((LEFT + edges[3]) / 2, 4460, if (of$washed) "Wet Sieving Method" else "Dry Sieving Method", anchor = 0.5)
  grams <- function(mass) if (mass) sprintf("%.2f g", mass) else ""
  rows <- cbind(
    c("Dry Mass of Original Sample", "Dry Mass after Washing", "Mass Loss through Washing"),
    c(grams(of$original), grams(of$washed), grams(of$lost))
  )
  draw_table(4100, c(edges[3], 5600, 7200), rows, heads = 0)
  rows <- cbind(c("Gravel Fraction", "Sand Fraction", "Fine Fraction"), sprintf("%.2f %%", c(of$gravel, of$sand, of$fines)))
  draw_table(4100, c(7200, 9800, RIGHT), rows, heads = 0)
  body <- matrix("", 10, 8)
  body[seq_along(of$names), ] <- cbind(
    of$names, ifelse(of$sizes > 0, plain(of$sizes), ""), plain(of$weighed[, 2]), plain(of$weighed[, 3]),
    masked(of$retained, 2), masked(of$cumulative, 2), masked(of$share, 1), masked(of$passing, 1)
  )
  heads <- rbind(
    c("Sieve", "Sieve", "Mass of", "Mass of Sieve", "Mass of Soil", "Cumulative", "Cumulative", "Percent"),
    c("Number", "Opening", "Sieve", "+ Soil", "Retained", "Retained", "Retained", "Passing"),
    c("", "(mm)", "(g)", "(g)", "(g)", "(g)", "(%)", "(%)")
  )
  bottom <- draw_table(5400, edges, rows_of(heads, body), heads = 3)
  outcome <- if (of$error < 2) "less than 2% then the test need not be rerun." else "more than 2% then the test should be rerun."
  put(LEFT, bottom + 60, sprintf("Remark :  Percent mass loss due to sieving of this test is %.2f%% which is %s", of$error, outcome))
  sizes <- ifelse(c(of$D10, of$D30, of$D60) > 0, masked(c(of$D10, of$D30, of$D60), 3), "")
  rows <- rbind(c("D10 (mm)", "D30 (mm)", "D60 (mm)", "Cu", "Cc"), c(sizes, masked(c(of$Cu, of$Cc), 2)))
  bottom <- draw_table(bottom + 900, edges[1:6], rows)
  rows <- cbind(
    c("Unified Soil Classification System (USCS)", "Group Symbol", "Group Name", "AASHTO Classification System",
      "Group Symbol", "Typical Names"),
    c("", of$USCS, of$name, "", of$AASHTO, of$typical)
  )
  caption <- sprintf("Engineering Soil Classification (LL = %.2f %% PI = %.2f %%)", of$LL, of$LL - of$PL)
  draw_table(bottom + 700, c(LEFT, 3800, edges[6]), rows, caption, heads = 0)
  signed(d, "sie", material, 12600)
  grain_size_chart(of)
}

grain_size_chart <- function(of) {
  new_page()
  put(1000, PAPER[2] - 1000, "Database File is TRVN_road.mdb", 7.2)
  put(RIGHT, PAPER[2] - 1000, "Page 2", 7.2, anchor = 1)
  put(PAPER[1] / 2, 700, "PARTICLE SIZE DISTRIBUTION CURVE", 9, 2, 0.5)
  left <- 1400
  right <- 11000
  top <- 4500
  place <- function(size) left + (right - left) * (2 - log10(size)) / 4
  sizes <- c("1''" = 25, "3/4''" = 19, "1/2''" = 12.5, "3/8''" = 9.51, OPENINGS[c("#4", "#10", "#20", "#40", "#60", "#100", "#140", "#200")])
  segments(place(sizes), top - 150, y1 = top, lwd = 0.6)
  put(place(sizes), top - 400, names(sizes), 7, anchor = 0.5)
  coarse <- c(75, 4.75, 0.075, 75, 19, 4.75, 2, 0.425)
  fine <- c(4.75, 0.075, 0.01, 19, 4.75, 2, 0.425, 0.075)
  y <- top - 1100 + c(0, 0, 0, 1, 1, 1, 1, 1) * LINE
  rect(place(coarse), y, place(fine), y + LINE)
  bands <- c("Gravel", "Sand", "Silt or Clay", "Coarse", "Fine", "Coarse", "Medium", "Fine")
  put((place(coarse) + place(fine)) / 2, y + 60, bands, 7, anchor = 0.5)
  chart(left, top, right - left, 7000, c(100, 0.01), c(0, 100), "Grain Size(mm)", "Percent Passing (%)", log = "x", yaxp = c(0, 100, 10))
  abline(v = outer(1:9, 10^(-2:1)), col = "grey75", lwd = 0.5)
  lines(of$x, of$y, col = "blue", lwd = 1.5)
  points(of$x, of$y, pch = 21, bg = "orange")
}

page_spc <- function(d, material, of) {
  framed(d, "spc", material)
  rows <- rows_of(c("No.", "Flask + Water (g)", "Temperature"), cbind(1:7, plain(of$flask)))
  draw_table(4500, c(LEFT, 1939, 3379, 4818), rows, "Calibration Data")
  put(LEFT, c(8300, 8640), c(paste("Equation of Curve : ", of$equation), sprintf("R-squared Value :  %.4f", of$explained)))
  labels <- c(
    "Temperature, (Degree Celsius)", "Mass of Flask + Water, (g)", "Mass of Flask + Water + Soil, (g)", "Container No.",
    "Mass of Dry Soil + Container, (g)", "Mass of Container, (g)", "Dry Soil, (g)", "Correction Factor",
    "Specific Gravity at 20 Degree Celsius", "Average Specific Gravity"
  )
  cells <- rbind(
    plain(of$trials[1, ]), masked(of$filled, 2), plain(of$trials[3, ]), of$cans, plain(of$trials[5, ]),
    plain(of$trials[6, ]), masked(of$dry, 2), masked(of$factor, 4), masked(of$gravity, 2), c(masked(of$Gs, 2), "", "")
  )
  draw_table(9300, c(LEFT, 3500, 4818, 6135, 7453), rows_of(c("Trial No.", 1:3), cbind(labels, cells)), "Testing Data")
  signed(d, "spc", material, 13600)
  chart(5900, 4900, 5200, 3400, range(of$x), range(of$y, of$flask[, 1], na.rm = TRUE), "Temperature (Degree Celsius)", "Weight of Water + Flask (g)")
  lines(of$x, of$y, col = "blue")
  points(of$flask[, 2], of$flask[, 1], pch = 16)
}

page_compaction <- function(d, test, material, of) {
  framed(d, test, material)
  text_of <- function(name) box(d, test, material, name)
  rows <- rbind(
    c("Number of Layer :", text_of("cboLayer"), sprintf("Diameter of Mold : %s cm", text_of("txtDia"))),
    c("Weight of Hammer :", text_of("cboWt"), sprintf("Height of Mold : %s cm", text_of("txtHeight")))
  )
  draw_table(3770, c(LEFT, 2500, 5300, 8000), rows, heads = 0)
  rows <- cbind(c("OMC", "MDD"), c(sprintf("%.1f %%", of$OMC), sprintf("%.2f g/cm^3", of$MDD)))
  draw_table(3770, c(8000, 10300, RIGHT), rows, heads = 0)
  edges <- c(LEFT, seq(3000, RIGHT, length.out = 7))
  labels <- c(
    "Mass of Can + Wet Soil, (g)", "Mass of Can + Dry Soil, (g)", "Mass of Can, (g)", "Mass of Water, (g)",
    "Mass of Dry Soil, (g)", "Water Content, (%)"
  )
  rows <- rows_of(c("Sample No.", 1:6), c("Moisture Can No.", of$cans), cbind(labels, masked(rbind(of$weighed, of$water), 2)))
  bottom <- draw_table(4500, edges, rows, "Water Content Determination")
  labels <- c(
    "Assumed Water Content, (%)", "Mass of Soil + Mold, (g)", "Mass of Mold, (g)", "Water Content, (%)",
    "Mass of Soil in Mold, (g)", "Wet Density, (g/cm^3)", "Dry Density, (g/cm^3)"
  )
  worked <- rbind(of$water[3, ], of$wet, of$wet_density, of$dry_density)
  bottom <- draw_table(bottom, edges, cbind(labels, rbind(plain(of$molds), masked(worked, 2))), "Density Determination", heads = 0)
  signed(d, test, material, 12600)
  low <- min(of$y) - 0.01
  xlim <- c(floor(min(of$x)), floor(max(of$x)) + 2)
  ylim <- c(low, low + 13 * max((max(of$y) - low) / 8, 0.01))
  chart(1300, bottom + 600, 5900, 4500, xlim, ylim, "Water Content , %", "Dry Density , g/cm^3", main = sprintf("Zero Air Void Line (Gs = %s)", text_of("txtGs")))
  lines(of$air, col = "magenta", lwd = 0.7)
  lines(of$curve, col = "blue", lwd = 1.5)
  points(of$x, of$y, pch = 16)
  lines(c(of$OMC, of$OMC, 0), c(0, of$MDD, of$MDD), col = "red")
  text(xlim[1] + 0.1, of$MDD, sprintf("MDD = %.2f g/cm^3", of$MDD), adj = c(0, 0), cex = 0.8)
  text(of$OMC, low, sprintf("OMC = %.1f %%", of$OMC), adj = c(0, 0), cex = 0.8)
}

page_den <- function(d, material, of) {
  framed(d, "den", material)
  three <- c("Determination No.", 1:3)
  rows <- rows_of(
    three,
    cbind(
      c("Initial Mass of Jar + Sand + Cone, (g)", "Final Mass of Jar + Sand + Cone, (g)", "Mass of Sand in Cone, (g)"),
      plain(rbind(of$cone, of$in_cone)[, 1:3])
    ),
    c("Average, (g)", "", masked(of$mean_cone, 2), "")
  )
  draw_table(4500, c(LEFT, 3500, 4135, 4769, 5903), rows, "Mass of Sand in Cone")
  rows <- rows_of(
    three,
    cbind(
      c("Mass of Empty Mold + Baseplate, (g)", "Mass of Mold + Sand + Baseplate, (g)", "Mass of Sand, (g)", "Volume of Mold, (cm^3)"),
      rbind(plain(rbind(of$sand[3:4, ], of$filled)[, 1:3]), masked(of$volume[1:3], 2))
    ),
    c("Density of Sand, (g/cm^3)", "", masked(of$sand_density, 2), "")
  )
  draw_table(4161, c(6003, 9003, 9804, 10605, RIGHT), rows, "Density of Sand used Mold")
  six <- c("Test Hole No.", 1:6)
  in_holes <- function(value) ifelse(is.na(of$hole[1, ]), "", masked(value, 2))
  edges <- c(LEFT, seq(3500, RIGHT, length.out = 7))
  blocks <- list(
    "Mass of Wet Soil" = cbind(
      c("Mass of Wet Soil + Pan, (g)", "Mass of Pan, (g)", "Mass of Wet Soil, (g)"), plain(rbind(of$soil, of$wet))
    ),
    "Volume from Sand Cone Method" = cbind(
      c("Initial of Soil + Jar + Cone, (g)", "Final of Soil + Jar + Cone, (g)", "Mass of Sand in Cone, (g)",
        "Mass of Sand in Hole, (g)", "Density of Sand, (g/cm^3)", "Volume of Hole, (cm^3)"),
      rbind(plain(of$hole), in_holes(of$mean_cone), plain(of$in_hole), in_holes(of$sand_density), masked(of$hole_volume, 2))
    ),
    "Water Content of Soil" = cbind(
      c("Mass of Wet Soil + Can, (g)", "Mass of Dry Soil + Can, (g)", "Mass of Can, (g)", "Mass of Wet Soil, (g)",
        "Mass of Dry Soil, (g)", "Water Content, (%)"),
      rbind(plain(of$water), masked(of$worked, 2))
    ),
    "Summary" = cbind(
      c("Max. Dry Density in Lab,(g/cm^3)", "Wet Density in Field, (g/cm^3)", "Dry Density in Field, (g/cm^3)", "Percent Compaction, (%)"),
      rbind(in_holes(of$maximum), masked(rbind(of$wet_density, of$dry_density, of$percent), 2))
    )
  )
  bottom <- 6600
  for (caption in names(blocks)) {
    narrow <- c(LEFT, seq(3500, 7453, length.out = 7))
    bottom <- draw_table(bottom, if (caption == "Summary") narrow else edges, rows_of(six, blocks[[caption]]), caption)
  }
  signed(d, "den", material, 14000)
}

page_cbr <- function(d, material, of) {
  framed(d, "cbr", material)
  text_of <- function(name) box(d, "cbr", material, name)
  kind <- paste(if (nzchar(text_of("optMod"))) "Modified" else "Standard", "Compaction")
  rows <- rbind(
    c(kind, "", "Soaked CBR"), c("OMC", sprintf("%.1f %%", of$OMC), sprintf("Prv. Constant (K) : %s lb/div.", text_of("txtK"))),
    c("MDD", sprintf("%.2f g/cm^3", of$MDD), sprintf("Surcharge Weight : %s kg", text_of("txtWeight")))
  )
  draw_table(3770, c(LEFT, 1600, 3200, 5903), rows, "Type of Compaction and CBR", heads = 0)
  rows <- rbind(
    c("Conditions", "Unsoaked", "Soaked", ""), c("Number of Blows per Layer/Layers", of$blows[1:3]),
    c("CBR at 0.1 in. Penetration (%)", masked(of$ratio[1, ], 1)), c("CBR at 0.2 in. Penetration (%)", masked(of$ratio[2, ], 1))
  )
  draw_table(3770, c(6003, 9003, 9804, 10605, RIGHT), rows, "CBR Solution")
  edges <- c(LEFT, seq(3500, RIGHT, length.out = 7))
  condition <- c("Condition", "", "Unsoaked", "", "", "Soaked", "")
  rows <- rows_of(
    condition, c("Can No.", of$cans),
    cbind(c("Mass of Can + Wet Soil, (g)", "Mass of Can + Dry Soil, (g)", "Mass of Can, (g)"), plain(of$water)),
    c("Moistue Content, (%)", masked(of$content, 2))
  )
  bottom <- draw_table(5600, edges, rows, "Water Content Determination")
  rows <- rows_of(
    condition, c("Mold No.", 1:3, 1:3), c("Number of Blows per Layer/Layers", of$blows),
    cbind(c("Diameter of Sample, (cm)", "Height of Sample, (cm)", "Mass of Mold + Compacted Soil, (g)", "Mass of Mold, (g)"), plain(of$mold)),
    c("Wet Density, (g/cm^3)", masked(of$wet_density, 2)), c("Dry Density, (g/cm^3)", masked(of$dry_density, 2))
  )
  bottom <- draw_table(bottom, edges, rows, "Dry Density Determination")
  draw_table(bottom, c(LEFT, 7453), matrix(sprintf("CBR Value at 95%% of %s is %.1f %%", kind, of$CBR)), "Results of Testing", heads = 0)
  rows <- rows_of(
    c("Date", "Time", "Elapsed", "Swell 1", "", "Swell 2", "", "Swell 3", ""), c("", "", "Time (hr.)", rep(c("(mm)", "(%)"), 3)),
    of$swelling, rep("", 9)
  )
  draw_table(bottom + 800, c(LEFT, 1500, 2500, seq(3500, 7453, length.out = 7)), rows, "Swelling Determination", heads = 2)
  signed(d, "cbr", material, 13600)
  penetration(d, material, of)
}

penetration <- function(d, material, of) {
  framed(d, "cbr", material)
  heads <- rbind(
    c("Mold No.", "", "1", "", "", "2", "", "", "3", ""), c("Penetration", rep(c("Load Dial", "Load", "Stress"), 3)),
    c("", rep(c("Reading", "P", "P/A"), 3)), c("(in)", rep(c("(div)", "(lb)", "(lb/in^2)"), 3))
  )
  body <- plain(of$depths)
  for (mold in 1:3) body <- cbind(body, plain(of$dials[, mold]), masked(of$loads[, mold], 1), masked(of$stresses[, mold], 2))
  bottom <- draw_table(3770, seq(LEFT, RIGHT, length.out = 11), rows_of(heads, body), heads = 4)
  found <- sprintf(
    c("Dry Density is %.2f g/cm^3", "CBR Value at 0.1 in. Penetration is %.1f %%", "CBR Value at 0.2 in. Penetration is %.1f %%"),
    c(of$after[1], of$ratio[, 1])
  )
  put(LEFT, bottom + 5600 + 380 * 0:2, found, 9)
  last <- of$depths[length(of$depths)]
  chart(1300, bottom + 700, 4200, 4000, c(0, last + 0.1), c(0, max(of$stresses) * 1.15), "Penetration, in", "Resistance of Penetration, lb/in^2")
  for (mold in 1:3) {
    lines(of$x, of$curves[, mold], col = "red")
    points(of$depths, of$stresses[, mold], pch = c(21, 16, 22)[mold], bg = "white")
    for (row in 1:2) {
      stress <- of$ratio[row, mold] * c(10, 15)[row]
      dashes(c(0.1, 0.2)[row], stress, 0)
      text(c(0.1, 0.2)[row], stress, sprintf(" %.2f", stress), adj = 0, cex = 0.7)
    }
  }
  legend("top", paste0("Mold No.", 1:3), pch = c(21, 16, 22), horiz = TRUE, cex = 0.7)
  chart(7200, bottom + 700, 4000, 4000, range(of$after, of$share), c(0, max(of$ratio) * 1.15), "Dry Density, g/cm^3", "California Bearing Ratio, %")
  for (row in 1:2) {
    lines(of$along, of$parabolas[, row], col = "red")
    points(of$after, of$ratio[row, ], pch = c(21, 16)[row], bg = "white")
  }
  dashes(of$share, of$CBR, of$after[1])
  text(of$share, of$CBR, sprintf("CBR Value = %.1f%%", of$CBR), adj = c(1, 0), cex = 0.8)
  legend("top", paste("CBR at", c(0.1, 0.2), "in."), pch = c(21, 16), horiz = TRUE, cex = 0.7)
}

LINES <- rbind(
  c("Atterberg Limits", "Liquid Limit (LL)", "LL", "%.2f %%"), c("", "Plastic Limit (PL)", "PL", "%.2f %%"),
  c("", "Plasticity Index (PI)", "PI", "%.2f %%"), c("", "Flow Index (FI)", "FI", "%.2f %%"),
  c("Sieve Analysis", "Gravel Fraction (GF)", "gravel", "%.1f %%"), c("", "Sand Fraction (SF)", "sand", "%.1f %%"),
  c("", "Fine Fraction (Passing #200)", "fines", "%.1f %%"), c("Soil Classification", "USCS", "USCS", "%s"),
  c("", "AASHTO", "AASHTO", "%s"), c("Specific Gravity", "Average Specific Gravity (Gs)", "Gs", "%.2f"),
  c("Standard Compaction", "Optimum Moisture Content (OMC)", "OMC std", "%.1f %%"),
  c("", "Maximum Dry Density (MDD)", "MDD std", "%.2f g/cm^3"),
  c("Modified Compaction", "Optimum Moisture Content (OMC)", "OMC mod", "%.1f %%"),
  c("", "Maximum Dry Density (MDD)", "MDD mod", "%.2f g/cm^3"), c("California Bearing Ratio", "Percent CBR", "CBR", "%.1f %%"),
  c("Field Density by Sand Cone", "Average Percent Compaction", "compaction", "%.2f %%")
)

overall <- function(of) {
  list(
    LL = of$att$LL, PL = of$att$PL, PI = of$att$PI, FI = of$att$FI, gravel = of$sie$gravel, sand = of$sie$sand,
    fines = of$sie$fines, USCS = of$sie$USCS, AASHTO = of$sie$AASHTO, Gs = of$spc$Gs, "OMC std" = of$std$OMC,
    "MDD std" = of$std$MDD, "OMC mod" = of$mod$OMC, "MDD mod" = of$mod$MDD, CBR = of$cbr$CBR,
    compaction = of$den$compaction, D60 = round(of$sie$D60, 3), "curve std" = length(of$std$curve$x),
    "curve mod" = length(of$mod$curve$x)
  )
}

page_overall <- function(d, results) {
  new_page()
  logo("cov_logo", 1250, 1250, 1200)
  put(3000, c(1200, 1600), c(thai("โปรแกรมเทอร์ราเวน สำหรับงานทดสอบวัสดุก่อสร้างทาง", BANNER), "Terravane Program"), 12, 2)
  head <- thai(c(box(d, "head", "", "txtProject"), box(d, "head", "", "txtLocation")), c("Name of the project", "Location"))
  put(1250, c(2700, 3100), paste(c("Project Name : ", "Location : "), head), 9.6)
  put(PAPER[1] / 2, 3800, "Summary of Test Results", 12, 2, 0.5)
  cells <- vapply(lapply(results, overall), function(of) {
    vapply(seq_len(nrow(LINES)), function(row) {
      found <- of[[LINES[row, 3]]]
      if (is.null(found)) "" else sprintf(LINES[row, 4], found)
    }, "")
  }, character(nrow(LINES)))
  rows <- rows_of(c("Test", "Property", "Results", ""), c("", "", "Soil", "Crushed Rock"), cbind(LINES[, 1:2], cells))
  draw_table(4500, c(1250, 4385, 7520, 9088, 10656), rows, heads = 2)
  put(1250, 12100, "Remark: * indicates that the test was performed using a wet sieve or an unsoaked CBR.", 8.4, 3)
}

write_report <- function(d, results, device, output) {
  inches <- PAPER / 1440
  if (device == "pdf") pdf(output, inches[1], inches[2]) else cairo_pdf(output, inches[1], inches[2], family = "Loma", onefile = TRUE)
  pages <- list(
    att = page_att, sie = page_sie, spc = page_spc, std = function(...) page_compaction(..., test = "std"),
    mod = function(...) page_compaction(..., test = "mod"), den = page_den, cbr = page_cbr
  )
  for (material in names(results)) {
    for (test in names(results[[material]])) {
      cover(d, test)
      pages[[test]](d = d, material = material, of = results[[material]][[test]])
    }
  }
  page_overall(d, results)
  invisible(dev.off())
}

# Every second point: 360 an inch. R keeps the points of a picture uncompressed in memory and again on every page.
read_logo <- function(path) {
  points <- jpeg::readJPEG(path)
  as.raster(points[seq(1, nrow(points), 2), seq(1, ncol(points), 2), ])
}

given <- commandArgs(TRUE)
THAI <- given[4] == "cairo_pdf"
JOBS <- if (length(given) > 4) as.integer(given[5]) else 1
if (JOBS == 1) invisible(compiler::enableJIT(0)) # compiling costs more than it brings where all runs once
names <- c("cov_logo", "ins_logo", "dep_logo")
LOGOS <- lapply(setNames(file.path(given[2], paste0(names, ".jpg")), names), read_logo)
for (job in seq_len(JOBS)) {
  d <- read_readings(given[1])
  results <- reduce_all(d)
  write_report(d, results, given[4], given[3])
}
if (length(given) > 5) {
  told <- lapply(results, function(of) Filter(Negate(is.null), overall(of)))
  lines <- unlist(lapply(names(told), function(m) sprintf("%s %s\t%s", m, names(told[[m]]), vapply(told[[m]], format, ""))))
  writeLines(lines, given[6])
}
