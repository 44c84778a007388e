// The dashboard map. The viewer drives it through four global functions:
// initialize(), MapMoveToAuto(lng, lat, level), removePolyLine() and
// addPolyLine(points, colour, width, opacity). Everything works without a
// network: a locally drawn grid is always underneath, and the OpenStreetMap
// tiles, when they arrive, simply cover it.
(function () {
  'use strict';

  var TILE_URL = 'https://{s}.tile.openstreetmap.org/{z}/{x}/{y}.png';
  var TILE_ATTRIBUTION = '&copy; OpenStreetMap contributors';
  var FOLLOW_ZOOM = 16;
  var ROUTE_MAX_ZOOM = 17;
  // With no tile after this long the network is taken as absent, so pending
  // tile requests stop competing with the rest of the page.
  var TILE_GIVE_UP_MS = 8000;
  var ERRORS_BEFORE_OFFLINE = 3;

  var map = null;
  var tiles = null;
  var route = null;
  var marker = null;
  var offline = false;
  var tilesLoaded = 0;
  var errorsSinceLoad = 0;
  var giveUpTimer = null;
  var moves = 0;
  // The viewer's own marker artwork; a plain dot stands in until (or unless) it loads.
  var MARKER_URL = '../images/map_marker.svg';
  var carIcon = L.divIcon({ className: 'car-marker', iconSize: [16, 16] });
  var markerImage = new Image();
  markerImage.onload = function () {
    carIcon = L.icon({ iconUrl: MARKER_URL, iconSize: [24, 36], iconAnchor: [12, 32] });
    if (marker !== null) {
      marker.setIcon(carIcon);
    }
  };
  markerImage.src = MARKER_URL;

  var PlainGrid = L.GridLayer.extend({
    createTile: function (coords) {
      var tile = document.createElement('canvas');
      var size = this.getTileSize();
      tile.width = size.x;
      tile.height = size.y;
      var ctx = tile.getContext('2d');
      ctx.fillStyle = '#eeeae2';
      ctx.fillRect(0, 0, size.x, size.y);
      ctx.strokeStyle = '#e0dbd0';
      ctx.lineWidth = 1;
      ctx.beginPath();
      ctx.moveTo(size.x / 2 + 0.5, 0);
      ctx.lineTo(size.x / 2 + 0.5, size.y);
      ctx.moveTo(0, size.y / 2 + 0.5);
      ctx.lineTo(size.x, size.y / 2 + 0.5);
      ctx.stroke();
      ctx.strokeStyle = '#d2cbbd';
      ctx.strokeRect(0.5, 0.5, size.x, size.y);
      return tile;
    }
  });

  function setOffline(value) {
    if (offline === value) {
      return;
    }
    offline = value;
    document.body.classList.toggle('offline', value);
    if (value && tiles) {
      map.removeLayer(tiles);
      tiles = null;
    }
    if (!value && !tiles) {
      addTiles();
    }
  }

  function armGiveUpTimer() {
    if (giveUpTimer !== null) {
      clearTimeout(giveUpTimer);
    }
    giveUpTimer = setTimeout(function () {
      giveUpTimer = null;
      if (tilesLoaded === 0) {
        setOffline(true);
      }
    }, TILE_GIVE_UP_MS);
  }

  function addTiles() {
    tilesLoaded = 0;
    errorsSinceLoad = 0;
    tiles = L.tileLayer(TILE_URL, {
      maxZoom: 19,
      zIndex: 1,
      attribution: TILE_ATTRIBUTION
    });
    tiles.on('tileload', function () {
      tilesLoaded += 1;
      errorsSinceLoad = 0;
    });
    tiles.on('tileerror', function () {
      errorsSinceLoad += 1;
      if (tilesLoaded === 0 || errorsSinceLoad >= ERRORS_BEFORE_OFFLINE) {
        setOffline(true);
      }
    });
    tiles.addTo(map);
    armGiveUpTimer();
  }

  function validPosition(lat, lng) {
    return isFinite(lat) && isFinite(lng) &&
      Math.abs(lat) <= 90 && Math.abs(lng) <= 180 && !(lat === 0 && lng === 0);
  }

  function parsePoints(text) {
    var points = [];
    if (typeof text !== 'string' || text.length === 0) {
      return points;
    }
    var pairs = text.split('|');
    for (var i = 0; i < pairs.length; i++) {
      var parts = pairs[i].split(',');
      if (parts.length !== 2) {
        continue;
      }
      var lng = parseFloat(parts[0]);
      var lat = parseFloat(parts[1]);
      if (validPosition(lat, lng)) {
        points.push([lat, lng]);
      }
    }
    return points;
  }

  window.initialize = function () {
    if (map !== null) {
      return;
    }
    map = L.map('map', {
      center: [0, 0],
      zoom: 2,
      zoomControl: true,
      attributionControl: true,
      fadeAnimation: false
    });
    new PlainGrid({ zIndex: 0 }).addTo(map);
    L.control.scale({ position: 'bottomleft', imperial: false }).addTo(map);
    if (navigator.onLine === false) {
      offline = true;
      document.body.classList.add('offline');
    } else {
      addTiles();
    }
    window.addEventListener('online', function () { setOffline(false); });
    window.addEventListener('offline', function () { setOffline(true); });
  };

  function ensureMap() {
    if (map === null) {
      window.initialize();
    }
  }

  window.MapMoveToAuto = function (lng, lat, level) {
    ensureMap();
    lat = Number(lat);
    lng = Number(lng);
    if (!validPosition(lat, lng)) {
      return;
    }
    var zoom = Number(level);
    if (!(zoom >= 0)) {
      zoom = map.getZoom() < 12 ? FOLLOW_ZOOM : map.getZoom();
    }
    var where = L.latLng(lat, lng);
    if (marker === null) {
      marker = L.marker(where, {
        icon: carIcon,
        interactive: false,
        keyboard: false
      }).addTo(map);
    } else {
      marker.setLatLng(where);
    }
    map.setView(where, zoom, { animate: moves > 0 });
    moves += 1;
  };

  // The trip overlay below draws on the same map.
  window.__tarvikMap = function () { ensureMap(); return map; };

  window.removePolyLine = function () {
    ensureMap();
    if (route !== null) {
      map.removeLayer(route);
      route = null;
    }
  };

  window.addPolyLine = function (points, colour, width, opacity) {
    ensureMap();
    window.removePolyLine();
    var latlngs = parsePoints(points);
    if (latlngs.length === 0) {
      return;
    }
    route = L.polyline(latlngs, {
      color: colour || 'red',
      weight: Number(width) || 4,
      opacity: opacity === undefined ? 0.5 : Number(opacity),
      interactive: false
    }).addTo(map);
    map.fitBounds(route.getBounds(), { padding: [20, 20], maxZoom: ROUTE_MAX_ZOOM, animate: false });
  };

  // Read back by the viewer's tests and handy in a web inspector.
  window.mapState = function () {
    var state = {
      initialized: map !== null,
      offline: offline,
      tilesLoaded: tilesLoaded,
      moves: moves,
      zoom: map ? map.getZoom() : null,
      center: null,
      marker: null,
      markerImage: markerImage.complete && markerImage.naturalWidth > 0,
      route: [],
      routeStyle: null,
      scale: document.querySelector('.leaflet-control-scale') !== null
    };
    if (map) {
      var c = map.getCenter();
      state.center = { lat: c.lat, lng: c.lng };
    }
    if (marker) {
      var m = marker.getLatLng();
      state.marker = { lat: m.lat, lng: m.lng };
    }
    if (route) {
      state.route = route.getLatLngs().map(function (p) { return [p.lat, p.lng]; });
      state.routeStyle = {
        color: route.options.color,
        weight: route.options.weight,
        opacity: route.options.opacity
      };
    }
    return state;
  };
})();

// A whole trip under the clip's own route: the stretch still ahead dashed,
// the part already driven solid. setTripRoute(points) ('lat,lng;...' like
// addPolyLine), setTripProgress(n) (the first n points are driven),
// clearTrip(), tripState() for the tests.
(function () {
  'use strict';
  var ahead = null, driven = null, points = [];

  function mapOf() { return window.__tarvikMap ? window.__tarvikMap() : null; }

  window.clearTrip = function () {
    var map = mapOf();
    if (map && ahead) map.removeLayer(ahead);
    if (map && driven) map.removeLayer(driven);
    ahead = driven = null;
    points = [];
  };

  window.setTripRoute = function (text) {
    window.clearTrip();
    var map = mapOf();
    if (!map) return;
    points = String(text).split(';').map(function (p) {
      var v = p.split(',');
      return [Number(v[0]), Number(v[1])];
    }).filter(function (v) { return isFinite(v[0]) && isFinite(v[1]) && (v[0] !== 0 || v[1] !== 0); });
    if (points.length < 2) return;
    ahead = L.polyline(points, { color: '#4aa3ff', weight: 4, opacity: 0.8, dashArray: '6 6', interactive: false }).addTo(map);
    driven = L.polyline([], { color: '#ffb020', weight: 5, opacity: 0.95, interactive: false }).addTo(map);
    map.fitBounds(ahead.getBounds(), { padding: [16, 16], maxZoom: 17, animate: false });
  };

  window.setTripProgress = function (n) {
    if (!driven) return;
    driven.setLatLngs(points.slice(0, Math.max(0, Math.min(points.length, n))));
  };

  window.tripState = function () {
    return { points: points.length, driven: driven ? driven.getLatLngs().length : 0 };
  };
})();
