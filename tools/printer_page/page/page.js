// Shows what the printer prints as it prints, and sends it what is switched.
'use strict';

const byId = (id) => document.getElementById(id);
const token = document.querySelector('meta[name="q7-token"]').content;
const list = byId('list');
const switches = byId('switches');
const receipts = new Map(); // by number: what the server says of it, and its element
const shownAtOnce = 10; // so many of the latest show their pictures unasked
let kept = 0;
let begun = false; // the first news are what was printed before this page was opened

// ------------------------------------------------------------------ pictures

// Pictures are drawn on canvases, and only near the window: a browser keeps what images decode to for
// long, half a gigabyte of it, where a canvas gives its memory back when it is told to.
const near = new IntersectionObserver((entries) => {
  for (const { target, isIntersecting } of entries) {
    target.near = isIntersecting;
    if (isIntersecting) {
      draw(target);
    } else {
      target.width = target.height = 0;
    }
  }
}, { rootMargin: '600px' });

async function draw(canvas) {
  const address = canvas.dataset.address;
  const answer = await fetch(address).catch(() => null);
  if (!answer?.ok) {
    return;
  }
  const picture = await createImageBitmap(await answer.blob());
  if (canvas.near && canvas.dataset.address === address) {
    canvas.width = picture.width;
    canvas.height = picture.height;
    canvas.getContext('2d').drawImage(picture, 0, 0);
  }
  picture.close();
}

function newCanvas(paper) {
  const canvas = document.createElement('canvas');
  canvas.width = canvas.height = 0;
  canvas.setAttribute('role', 'img');
  paper.append(canvas);
  near.observe(canvas);
  return canvas;
}

function drop(canvas) {
  near.unobserve(canvas);
  canvas.near = false;
  canvas.width = canvas.height = 0;
  canvas.remove();
}

function showPictures(paper, receipt) {
  const known = paper.querySelectorAll('canvas');
  receipt.imagens.forEach(([width, height], index) => {
    const canvas = known[index] || newCanvas(paper);
    // Changes with the picture, which has no number of its own.
    const address = `cupons/${receipt.numero}/imagem-${index + 1}.png?${receipt.pronto}-${receipt.bytes}`;
    if (canvas.dataset.address !== address) {
      canvas.dataset.address = address;
      canvas.style.width = `${width}px`;
      canvas.style.aspectRatio = `${width} / ${height}`;
      canvas.setAttribute('aria-label', `Cupom ${receipt.numero}, como sai no papel` +
        (receipt.imagens.length > 1 ? `, parte ${index + 1}` : ''));
      if (canvas.near) {
        draw(canvas);
      }
    }
  });
  [...known].slice(receipt.imagens.length).forEach(drop);
}

// ------------------------------------------------------------------ receipts

function factsOf(receipt) {
  const time = new Date(receipt.inicio).toLocaleTimeString('pt-BR');
  const rows = receipt.imagens.reduce((sum, [, height]) => sum + height, 0);
  const facts = [time, receipt.modelo, `${(rows / 80).toLocaleString('pt-BR', { maximumFractionDigits: 1 })} cm`,
    `${receipt.bytes.toLocaleString('pt-BR')} bytes`];
  if (receipt.encurtado) {
    facts.push('longo demais: guardado só em parte');
  }
  return facts.join(' · ');
}

async function load(details, receipt) {
  const pre = details.querySelector('pre');
  try {
    const answer = await fetch(`cupons/${receipt.numero}/${details.dataset.what}`);
    pre.textContent = answer.ok ? await answer.text() : 'Este cupom não está mais guardado.';
  } catch {
    pre.textContent = 'A impressora virtual não respondeu.';
  }
}

function elementOf(number) {
  const item = byId('receipt').content.firstElementChild.cloneNode(true);
  item.value = number;
  item.querySelector('h3').textContent = `Cupom ${number}`;
  for (const details of item.querySelectorAll('details[data-what]')) {
    details.addEventListener('toggle', () => {
      if (details.open) {
        load(details, receipts.get(number).data);
      } else {
        details.querySelector('pre').textContent = ''; // a long list is not kept unseen
      }
    });
  }
  return item;
}

function fill(ul, texts) {
  ul.replaceChildren(...texts.map((text) => {
    const item = document.createElement('li');
    item.textContent = text;
    return item;
  }));
}

function saveLinks(item, receipt) {
  const links = [...item.querySelectorAll('[data-save]')];
  for (const link of links) {
    const file = link.dataset.save;
    link.href = `cupons/${receipt.numero}/${file}`;
    link.download = `cupom-${receipt.numero}${file.slice(file.lastIndexOf('.'))}`;
    link.setAttribute('aria-label', `${link.textContent} do cupom ${receipt.numero}`);
  }
  links[0].onclick = () => saveFurtherParts(receipt);
}

// A receipt longer than two metres is several pictures.
function saveFurtherParts(receipt) {
  for (let part = 2; part <= receipt.imagens.length; part++) {
    const link = document.createElement('a');
    link.href = `cupons/${receipt.numero}/imagem-${part}.png`;
    link.download = `cupom-${receipt.numero}-${part}.png`;
    link.click();
  }
}

function show(receipt) {
  let entry = receipts.get(receipt.numero);
  if (!entry) {
    entry = { item: elementOf(receipt.numero) };
    receipts.set(receipt.numero, entry);
    const after = [...list.children].find((item) => item.value < receipt.numero);
    list.insertBefore(entry.item, after || null);
    entry.item.classList.toggle('fresh', begun);
  }
  entry.data = receipt;
  const item = entry.item;
  item.querySelector('.receipt').toggleAttribute('data-printing', !receipt.pronto);
  item.querySelector('.facts').textContent = factsOf(receipt);
  fill(item.querySelector('.notes'), receipt.avisos);
  const remarks = item.querySelector('.remarks');
  const count = receipt.observacoes.length;
  remarks.hidden = count === 0;
  remarks.querySelector('summary').textContent = count === 1 ? '1 observação da impressora'
    : `${count} observações da impressora`;
  fill(remarks.querySelector('ul'), receipt.observacoes);
  showPictures(item.querySelector('.paper'), receipt);
  saveLinks(item, receipt);
  for (const details of item.querySelectorAll('details[data-what][open]')) {
    load(details, receipt);
  }
}

function takeAway(number) {
  const { item } = receipts.get(number);
  item.querySelectorAll('canvas').forEach(drop);
  item.remove();
  receipts.delete(number);
}

// What a person has opened or closed stays so.
function foldOld() {
  [...receipts.values()].sort((a, b) => b.data.numero - a.data.numero).forEach((entry, place) => {
    if (place >= shownAtOnce && !entry.folded) {
      entry.folded = true;
      entry.item.querySelector('.sight').open = false;
    }
  });
}

function tellCount() {
  const count = receipts.size;
  byId('count').textContent = count === 0 ? ''
    : `${count} ${count === 1 ? 'guardado' : 'guardados'}; ficam os últimos ${kept}, até esta impressora ser encerrada`;
  byId('empty').hidden = count > 0;
  byId('clear').disabled = count === 0;
}

// ------------------------------------------------------------------ the printer

function verdictOf(state) {
  const faults = [];
  if (state.papel === 'sem') faults.push('sem papel');
  if (state.tampa === 'aberta') faults.push('tampa aberta');
  if (faults.length > 0) return ['no', `Não pode imprimir: ${faults.join(', ')}`];
  if (state.silencio === 'sim') return ['warn', 'Imprime, mas não responde'];
  if (state.papel === 'acabando') return ['warn', 'Pronta; o papel está acabando'];
  return ['yes', 'Pronta para imprimir'];
}

function showPrinter(state) {
  kept = state.guardados;
  const models = switches.elements.modelo;
  if (models.options.length !== state.modelos.length) {
    models.replaceChildren(...state.modelos.map((name) => new Option(name, name)));
  }
  models.value = state.modelo;
  switches.elements.papel.value = state.papel;
  for (const name of ['tampa', 'gaveta', 'silencio']) {
    const input = switches.elements[name];
    input.checked = state[name] === input.dataset.on;
  }
  const [ready, words] = verdictOf(state);
  byId('verdict').dataset.ready = ready;
  byId('verdict').textContent = words;
  const [, host, port] = /^net:(.*):(\d+)$/.exec(state.endereco);
  byId('link').dataset.state = 'up';
  byId('link').textContent = `${state.modelo} em ${host}, porta ${port}`;
  byId('how-q7').textContent = `q7 testar --impressora ${state.modelo}@${state.endereco}`;
  byId('how-call').textContent = `AbreConexaoImpressora(3, "${state.modelo}", "${host}", ${port})`;
  tellCount();
}

async function post(path, body) {
  const trouble = byId('trouble');
  try {
    const answer = await fetch(path, { method: 'POST', headers: { 'X-Q7-Token': token }, body });
    trouble.textContent = answer.ok ? '' : (await answer.text()) || 'A impressora recusou o pedido.';
  } catch {
    trouble.textContent = 'A impressora virtual não respondeu: ela ainda está aberta?';
  }
  trouble.hidden = trouble.textContent === '';
}

// One behind the other: on two connections the earlier one may arrive last, and what was chosen last
// would not hold.
let asked = Promise.resolve();
function ask(path, body) {
  asked = asked.then(() => post(path, body));
}

// A small window is for the receipts.
const wide = matchMedia('(min-width: 52.01rem)');
const fitPanel = () => { byId('panel').open = wide.matches; };
wide.addEventListener('change', fitPanel);
fitPanel();
switches.addEventListener('submit', (event) => event.preventDefault());
switches.addEventListener('change', ({ target }) => {
  const position = target.type === 'checkbox' ? target.dataset[target.checked ? 'on' : 'off'] : target.value;
  ask('chaves', new URLSearchParams({ [target.name]: position }));
});
byId('clear').addEventListener('click', () => ask('limpar', new URLSearchParams()));
byId('dots').addEventListener('change', ({ target }) => list.classList.toggle('dots', target.checked));

// ------------------------------------------------------------------ what happens

const events = new EventSource('eventos');
events.addEventListener('impressora', ({ data }) => showPrinter(JSON.parse(data)));
events.addEventListener('cupons', ({ data }) => {
  const news = JSON.parse(data);
  for (const number of [...receipts.keys()].filter((known) => known < news.primeiro)) {
    takeAway(number);
  }
  news.mudados.forEach(show);
  foldOld();
  const finished = news.mudados.filter((receipt) => receipt.pronto);
  if (begun && finished.length > 0) {
    const last = finished[finished.length - 1];
    byId('news').textContent = `Cupom ${last.numero} impresso` +
      (last.avisos.length > 0 ? `, com ${last.avisos.length} ${last.avisos.length === 1 ? 'aviso' : 'avisos'}.` : '.');
  }
  begun = true;
  tellCount();
});
events.addEventListener('error', () => {
  byId('link').dataset.state = 'down';
  byId('link').textContent = 'Sem ligação com a impressora virtual; tentando de novo…';
});
